#include "Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <functional>
#include <utility>

namespace PipePicture {

namespace {

QString text(const char *message)
{
    return QCoreApplication::translate("PipePicture", message);
}

/** An option that sets one number of the scene. */
struct NumberOption
{
    const char *name;
    const char *unit;
    const char *description;
    std::function<void(SceneSettings &, double)> set;
};

// clang-format off
const std::vector<NumberOption> &numberOptions()
{
    using S = SceneSettings;
    static const std::vector<NumberOption> options{
        {"diameter", "mm", "Inner diameter of the pipe.", [](S &s, double v) { s.diameterMm = v; }},
        {"pipe-length", "mm", "Length from joint to joint.", [](S &s, double v) { s.pipeLengthMm = v; }},
        {"fov", "deg", "Vertical field of view.", [](S &s, double v) { s.camera.fovDeg = v; }},
        {"camera-height", "percent", "Height of the eye above the invert, of the diameter.", [](S &s, double v) { s.camera.heightShare = v * 0.01; }},
        {"offset-x", "px", "Sideways shift of the camera, diameter times this / 576.", [](S &s, double v) { s.camera.offsetPx = v; }},
        {"roll", "deg", "Turn of the pipe about its axis, clockwise.", [](S &s, double v) { s.camera.rollDeg = v; }},
        {"yaw", "deg", "Turn of the pipe that moves its far end to the right.", [](S &s, double v) { s.camera.yawDeg = v; }},
        {"pitch", "deg", "Turn of the pipe that moves its far end up.", [](S &s, double v) { s.camera.pitchDeg = v; }},
        {"k1", "number", "Radial distortion of the lens; below 0 a barrel.", [](S &s, double v) { s.camera.k1 = v; }},
        {"k2", "number", "The same, with the fourth power.", [](S &s, double v) { s.camera.k2 = v; }},
        {"water", "percent", "Water level, of the diameter.", [](S &s, double v) { s.waterShare = v * 0.01; }},
        {"crack-width", "mm", "Width of the crack at the laser spots; 0 for none.", [](S &s, double v) { s.crack.widthMm = v; }},
        {"crack-length", "mm", "Length of the crack along the pipe.", [](S &s, double v) { s.crack.lengthMm = v; }},
        {"crack-depth", "mm", "Way from the mouth to where the crack is measured.", [](S &s, double v) { s.crack.depthMm = v; }},
        {"crack-clock", "deg", "Clock position of the crack.", [](S &s, double v) { s.crack.clockDeg = v; }},
        {"laser-distance", "mm", "Distance of the two laser spots; 0 for none.", [](S &s, double v) { s.laser.distanceMm = v; }},
        {"laser-spot", "mm", "Diameter of a laser spot.", [](S &s, double v) { s.laser.spotMm = v; }},
        {"spall-length", "mm", "Length of the spalled spot; 0 for none.", [](S &s, double v) { s.spall.lengthMm = v; }},
        {"spall-width", "mm", "Width of the spalled spot.", [](S &s, double v) { s.spall.widthMm = v; }},
        {"spall-depth", "mm", "Way from the mouth to the spalled spot.", [](S &s, double v) { s.spall.depthMm = v; }},
        {"spall-clock", "deg", "Clock position of the spalled spot.", [](S &s, double v) { s.spall.clockDeg = v; }},
        {"branch-share", "percent", "Diameter of the branch, of the pipe's; 0 for none.", [](S &s, double v) { s.branch.share = v * 0.01; }},
        {"branch-angle", "deg", "Angle between branch and pipe, from 30 to 150.", [](S &s, double v) { s.branch.angleDeg = v; }},
        {"branch-clock", "deg", "Clock position of the branch.", [](S &s, double v) { s.branch.clockDeg = v; }},
        {"bend-angle", "deg", "Angle of the bend or the turned joint; 0 for none.", [](S &s, double v) { s.bend.angleDeg = v; }},
        {"bend-clock", "deg", "Clock position towards which the pipe turns.", [](S &s, double v) { s.bend.clockDeg = v; }},
        {"bend-radius", "percent", "Radius of the turned axis, of the diameter, at least 50.", [](S &s, double v) { s.bend.radiusShare = v * 0.01; }},
        {"bend-straight", "percent", "Straight piece after the bend, of the diameter.", [](S &s, double v) { s.bend.straightShare = v * 0.01; }},
        {"deposit-height", "percent", "Height of a hard deposit, of the diameter; 0 for none.", [](S &s, double v) { s.deposit.heightShare = v * 0.01; }},
        {"deposit-depth", "percent", "Front of the deposit, of the modelled length of ten diameters.", [](S &s, double v) { s.deposit.depthShare = v * 0.01; }},
        {"exposure", "stops", "Brighter (positive) or darker picture.", [](S &s, double v) { s.lens.exposureStops = v; }},
        {"falloff", "power", "Light falls with the distance to this power.", [](S &s, double v) { s.lens.falloff = v; }},
        {"vignette", "share", "Share of light lost in the corners, from 0 to 1.", [](S &s, double v) { s.lens.vignette = v; }},
        {"blur", "px", "Standard deviation of the lens' blur.", [](S &s, double v) { s.lens.blurPx = v; }},
        {"noise", "steps", "Standard deviation of the sensor's noise, of 255.", [](S &s, double v) { s.lens.noise = v; }},
    };
    return options;
}
// clang-format on

const QString sceneOption = QStringLiteral("scene");
const QString sizeOption = QStringLiteral("size");
const QString materialOption = QStringLiteral("material");
const QString cleanOption = QStringLiteral("clean");
const QString seedOption = QStringLiteral("seed");
const QString samplesOption = QStringLiteral("samples");
const QString qualityOption = QStringLiteral("quality");
const QString forceOption = QStringLiteral("force");

QString sceneList()
{
    QStringList names;
    for (const SceneKind kind : sceneKinds())
        names << sceneName(kind);
    return names.join(QStringLiteral(", "));
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        text("Draws a picture from inside a pipe whose measures are known, and writes them beside "
             "it as <name>.truth.json.\n\n"
             "Exit codes: 0 written, 2 wrong usage, 3 cannot write.\n"
             "Example: pipe-picture --scene water --water 30 --diameter 250 water.jpg"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("picture"),
                                 text("Picture to write: .png, .jpg or .jpeg."));
    parser.addOption({sceneOption, text("What to show, with fitting values: %1.").arg(sceneList()),
                      QStringLiteral("name"), sceneName(SceneKind::Dimension)});
    parser.addOption({sizeOption, text("Size of the picture."), QStringLiteral("WxH"),
                      QStringLiteral("768x576")});
    parser.addOption({materialOption, text("Wall: concrete or clay."), QStringLiteral("name")});
    parser.addOption({cleanOption, text("Plain wall without texture, dirt, noise or blur.")});
    parser.addOption(
        {seedOption, text("Another number gives another wall."), QStringLiteral("number")});
    parser.addOption({samplesOption,
                      text("Rays along each side of a pixel on an edge, from 1 to 8."),
                      QStringLiteral("number")});
    parser.addOption({qualityOption, text("Quality of a JPEG picture, from 1 to 100."),
                      QStringLiteral("number"), QStringLiteral("90")});
    parser.addOption({forceOption, text("Write over existing files.")});
    for (const NumberOption &option : numberOptions())
        parser.addOption({QString::fromLatin1(option.name), text(option.description),
                          QString::fromLatin1(option.unit)});
}

/** Takes the values of one command line; the first thing wrong ends it. */
class RequestReader
{
public:
    explicit RequestReader(const QCommandLineParser &parser)
        : m_parser(parser)
    {}

    /** Empty when everything is right. */
    QString read(Request &request)
    {
        readScene(request.scene);
        readSize(request.scene);
        readMaterial(request.scene);
        readClean(request.scene);
        readNumbers(request.scene);
        readCounts(request);
        readFiles(request);
        if (m_error.isEmpty())
            m_error = sceneError(request.scene);
        return m_error;
    }

private:
    void fail(const QString &error)
    {
        if (m_error.isEmpty())
            m_error = error;
    }

    void readScene(SceneSettings &scene)
    {
        const QString name = m_parser.value(sceneOption);
        for (const SceneKind kind : sceneKinds()) {
            if (sceneName(kind) == name) {
                scene = presetScene(kind);
                return;
            }
        }
        fail(text("There is no scene \"%1\"; choose one of %2.").arg(name, sceneList()));
    }

    void readSize(SceneSettings &scene)
    {
        static const QRegularExpression form(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
        const QRegularExpressionMatch match = form.match(m_parser.value(sizeOption));
        if (!match.hasMatch())
            return fail(text("The size must look like 768x576."));
        scene.camera.picture = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    }

    void readMaterial(SceneSettings &scene)
    {
        const QString name = m_parser.value(materialOption);
        if (name == QLatin1String("clay"))
            scene.material = Material::Clay;
        else if (name == QLatin1String("concrete"))
            scene.material = Material::Concrete;
        else if (m_parser.isSet(materialOption))
            fail(text("There is no material \"%1\"; choose concrete or clay.").arg(name));
    }

    // Before the numbers, so that a plain wall can still be given noise or blur.
    void readClean(SceneSettings &scene)
    {
        if (!m_parser.isSet(cleanOption))
            return;
        scene.clean = true;
        scene.lens.blurPx = 0.0;
        scene.lens.noise = 0.0;
        scene.lens.vignette = 0.0;
    }

    void readNumbers(SceneSettings &scene)
    {
        for (const NumberOption &option : numberOptions()) {
            const QString name = QString::fromLatin1(option.name);
            if (!m_parser.isSet(name))
                continue;
            bool ok = false;
            const double value = m_parser.value(name).toDouble(&ok);
            if (!ok || !std::isfinite(value))
                return fail(
                    text("--%1 needs a number, not \"%2\".").arg(name, m_parser.value(name)));
            option.set(scene, value);
        }
    }

    int wholeNumber(const QString &name, int least, int most, int preset)
    {
        if (!m_parser.isSet(name))
            return preset;
        bool ok = false;
        const int value = m_parser.value(name).toInt(&ok);
        if (!ok || value < least || value > most)
            fail(text("--%1 needs a whole number from %2 to %3.").arg(name).arg(least).arg(most));
        return value;
    }

    void readCounts(Request &request)
    {
        constexpr int largestSeed = 1000000;
        SceneSettings &scene = request.scene;
        scene.seed = quint32(wholeNumber(seedOption, 0, largestSeed, int(scene.seed)));
        scene.lens.samples = wholeNumber(samplesOption, 1, 8, scene.lens.samples);
        request.quality = wholeNumber(qualityOption, 1, 100, request.quality);
        request.force = m_parser.isSet(forceOption);
    }

    void readFiles(Request &request)
    {
        const QStringList files = m_parser.positionalArguments();
        if (files.size() != 1)
            return fail(text("Give one picture to write."));
        const QFileInfo picture(files.first());
        const QString suffix = picture.suffix().toLower();
        if (suffix != QLatin1String("png") && suffix != QLatin1String("jpg") &&
            suffix != QLatin1String("jpeg"))
            return fail(text("The picture must end in .png, .jpg or .jpeg."));
        request.pictureFile = files.first();
        request.truthFile = picture.path() + QLatin1Char('/') + picture.completeBaseName() +
                            QStringLiteral(".truth.json");
    }

    const QCommandLineParser &m_parser;
    QString m_error;
};

} // namespace

ParsedOptions parseOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    ParsedOptions parsed;
    if (!parser.parse(arguments)) {
        parsed.text = parser.errorText();
        return parsed;
    }
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all"))) {
        parsed.action = ParsedOptions::Action::ShowHelp;
        parsed.text = parser.helpText();
        return parsed;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        parsed.action = ParsedOptions::Action::ShowVersion;
        parsed.text = QCoreApplication::applicationName() + QLatin1Char(' ') +
                      QCoreApplication::applicationVersion();
        return parsed;
    }
    parsed.text = RequestReader(parser).read(parsed.request);
    if (parsed.text.isEmpty())
        parsed.action = ParsedOptions::Action::Draw;
    return parsed;
}

} // namespace PipePicture
