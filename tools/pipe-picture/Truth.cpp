#include "Truth.h"

#include "Marks.h"
#include "Shape.h"

#include <QJsonArray>

namespace PipePicture {

namespace {

constexpr double modelLengthDiameters = 10.0;
// The bend model of the overlay is drawn at this share of the nominal diameter, with its camera
// nearer by the same share; in the picture both agree.
constexpr double drawnBendShare = 0.9512;
// The overlay's rear circle moves by these, sideways and up, for a turn by half the field of view.
constexpr double rearSideways = 85.0;
constexpr double rearUp = 50.0;
constexpr int rimPoints = 24;
constexpr int ringPoints = 12;

/** Seven decimals of a pixel or a metre are far below any use and keep the file readable. */
double rounded(double value)
{
    return std::round(value * 1e7) / 1e7;
}

QJsonArray toJson(const QPointF &p)
{
    return {rounded(p.x()), rounded(p.y())};
}
QJsonArray toJson(const Vec &p)
{
    return {rounded(p.x), rounded(p.y), rounded(p.z)};
}

QString measurementKind(SceneKind kind)
{
    switch (kind) {
    case SceneKind::Crack:
        return QStringLiteral("CrackWidth");
    case SceneKind::Dimension:
        return QStringLiteral("PipeDimension");
    case SceneKind::Water:
        return QStringLiteral("WaterLevel");
    case SceneKind::Branch:
        return QStringLiteral("BranchAngle");
    case SceneKind::Bend:
    case SceneKind::Joint:
        return QStringLiteral("BendAngle");
    case SceneKind::Section:
        return QStringLiteral("CrossSection");
    }
    return {};
}

/** Builds the parts of the truth for one scene. */
class TruthWriter
{
public:
    explicit TruthWriter(const SceneSettings &scene)
        : m_scene(scene)
        , m_camera(scene.camera, scene.diameterM())
        , m_shape(scene)
    {}

    QJsonObject picture(const QString &name) const;
    QJsonObject camera() const;
    QJsonObject pipe() const;
    QJsonArray joints() const;
    QJsonObject crack() const;
    QJsonObject laser() const;
    QJsonArray dimensions() const;
    QJsonObject water() const;
    QJsonObject branch() const;
    QJsonObject bend() const;
    QJsonObject section() const;

private:
    QJsonObject points(const std::vector<Vec> &points) const;
    QJsonObject pair(const PointPair &pair) const { return points({pair[0], pair[1]}); }
    QJsonObject dimension(const QString &name, const PointPair &pair) const;
    QJsonObject bendRing(const QString &name, double alongM) const;

    SceneSettings m_scene;
    Camera m_camera;
    Shape m_shape;
};

QJsonObject TruthWriter::points(const std::vector<Vec> &points) const
{
    QJsonArray clicks;
    QJsonArray scene;
    for (const Vec &point : points) {
        clicks.append(toJson(m_camera.project(point)));
        scene.append(toJson(point));
    }
    return {{"clicks", clicks}, {"scene", scene}};
}

QJsonObject TruthWriter::picture(const QString &name) const
{
    const QSize size = m_scene.camera.picture;
    const QRectF square = m_camera.square();
    return {{"file", name},
            {"width", size.width()},
            {"height", size.height()},
            {"square", QJsonArray{square.x(), square.y(), square.width(), square.height()}},
            {"pixels", "x to the right, y down; pixel (i, j) covers [i, i + 1) x [j, j + 1)"}};
}

QJsonObject TruthWriter::camera() const
{
    const CameraSettings &camera = m_scene.camera;
    const double half = camera.fovDeg * 0.5;
    return {{"fovDeg", camera.fovDeg},
            {"heightPercent", rounded(camera.heightShare * 100.0)},
            {"offsetPx", camera.offsetPx},
            {"rollDeg", camera.rollDeg},
            {"yawDeg", camera.yawDeg},
            {"pitchDeg", camera.pitchDeg},
            {"rearCircle", QJsonArray{rounded(-camera.yawDeg / half * rearSideways),
                                      rounded(-camera.pitchDeg / half * rearUp)}},
            {"eye", toJson(m_camera.eye())}};
}

QJsonObject TruthWriter::pipe() const
{
    return {{"diameterMm", m_scene.diameterMm},
            {"modelLengthMm", modelLengthDiameters * m_scene.diameterMm},
            {"pipeLengthMm", m_scene.pipeLengthMm},
            {"material", m_scene.material == Material::Clay ? "clay" : "concrete"}};
}

QJsonArray TruthWriter::joints() const
{
    QJsonArray joints;
    if (m_scene.bend.angleDeg > 0.0)
        return joints;
    for (const double depth : jointDepths(m_scene)) {
        std::vector<Vec> ring;
        for (int i = 0; i < ringPoints; ++i)
            ring.push_back(m_shape.wallPoint(i * 360.0 / ringPoints, depth));
        QJsonObject joint = points(ring);
        joint["depthMm"] = rounded(depth * 1000.0);
        joints.append(joint);
    }
    return joints;
}

QJsonObject TruthWriter::crack() const
{
    const PointPair edges = crackEdges(m_scene);
    QJsonObject crack = pair(edges);
    crack["widthMm"] = m_scene.crack.widthMm;
    crack["clockDeg"] = m_scene.crack.clockDeg;
    crack["depthMm"] = m_scene.crack.depthMm;
    crack["mmPerPixel"] = rounded(m_camera.metresPerPixel(edges[0]) * 1000.0);
    return crack;
}

QJsonObject TruthWriter::laser() const
{
    const PointPair spots = laserSpots(m_scene);
    QJsonObject laser = pair(spots);
    laser["distanceMm"] = m_scene.laser.distanceMm;
    laser["mmPerPixel"] = rounded(m_camera.metresPerPixel(spots[0]) * 1000.0);
    return laser;
}

QJsonObject TruthWriter::dimension(const QString &name, const PointPair &ends) const
{
    QJsonObject dimension = pair(ends);
    dimension["name"] = name;
    dimension["lengthMm"] = rounded(length(ends[1] - ends[0]) * 1000.0);
    return dimension;
}

QJsonArray TruthWriter::dimensions() const
{
    QJsonArray dimensions;
    if (m_scene.bend.angleDeg > 0.0)
        return dimensions;
    if (m_scene.spall.lengthMm > 0.0) {
        dimensions.append(dimension("spall length", spallTips(m_scene)));
        dimensions.append(dimension("spall width", spallSides(m_scene)));
    }
    const double pipe = m_scene.pipeLengthMm * 0.001;
    dimensions.append(dimension("diameter at the first joint",
                                {m_shape.wallPoint(270.0, 0.0), m_shape.wallPoint(90.0, 0.0)}));
    dimensions.append(dimension("pipe length from joint to joint",
                                {m_shape.wallPoint(60.0, 0.0), m_shape.wallPoint(60.0, pipe)}));
    return dimensions;
}

QJsonObject TruthWriter::water() const
{
    const double y = m_shape.waterY();
    const double half = std::sqrt(std::fmax(squared(m_scene.radiusM()) - y * y, 0.0));
    QJsonArray lines;
    std::vector<double> depths{0.0};
    if (m_scene.bend.angleDeg <= 0.0) {
        depths.push_back(m_scene.diameterM());
        depths.push_back(modelLengthDiameters * m_scene.diameterM());
    }
    for (const double depth : depths) {
        QJsonObject line = pair({Vec{half, y, -depth}, Vec{-half, y, -depth}});
        line["depthMm"] = rounded(depth * 1000.0);
        lines.append(line);
    }
    return {{"share", m_scene.waterShare},
            {"percent", rounded(m_scene.waterShare * 100.0)},
            {"edges", lines}};
}

QJsonObject TruthWriter::branch() const
{
    std::vector<Vec> rim;
    for (int i = 0; i < rimPoints; ++i)
        rim.push_back(m_shape.branchRimPoint(i * 360.0 / rimPoints));
    QJsonObject branch{{"angleDeg", m_scene.branch.angleDeg},
                       {"diameterShare", m_scene.branch.share},
                       {"percent", rounded(m_scene.branch.share * 100.0)},
                       {"clockDeg", m_scene.branch.clockDeg}};
    branch["rim"] = points(rim);
    return branch;
}

QJsonObject TruthWriter::bendRing(const QString &name, double alongM) const
{
    std::vector<Vec> ring;
    for (int i = 0; i < ringPoints; ++i)
        ring.push_back(m_shape.bendRingPoint(i * 360.0 / ringPoints, alongM));
    QJsonObject object = points(ring);
    object["name"] = name;
    return object;
}

QJsonObject TruthWriter::bend() const
{
    const double bendEnd = m_shape.bendLengthM();
    const double nextJoint = bendEnd + m_scene.bend.straightShare * m_scene.diameterM();
    return {{"angleDeg", m_scene.bend.angleDeg},
            {"clockDeg", m_scene.bend.clockDeg},
            {"viewDownstream", true},
            {"viewObject", m_scene.kind == SceneKind::Joint ? "joint" : "bend"},
            {"straightPercent", rounded(m_scene.bend.straightShare * 100.0)},
            {"drawnShare", drawnBendShare},
            {"rings", QJsonArray{bendRing("begin", 0.0), bendRing("end", bendEnd),
                                 bendRing("next joint", nextJoint)}}};
}

QJsonObject TruthWriter::section() const
{
    const QPolygonF outline = m_shape.depositOutline();
    const double z = -m_scene.deposit.depthShare * modelLengthDiameters * m_scene.diameterM();
    std::vector<Vec> corners;
    for (const QPointF &corner : outline)
        corners.push_back({corner.x(), corner.y(), z});
    corners.push_back(corners.front());
    const double area = polygonArea(outline);
    QJsonObject section = points(corners);
    section["closed"] = true;
    section["depthShare"] = m_scene.deposit.depthShare;
    section["percent"] = rounded(m_scene.deposit.depthShare * 100.0);
    section["areaMm2"] = rounded(area * 1e6);
    section["depositAreaMm2"] = rounded(m_shape.depositAreaM2() * 1e6);
    section["areaShare"] = rounded(area / (pi * squared(m_scene.radiusM())));
    return section;
}

} // namespace

QJsonObject truthOf(const SceneSettings &scene, const QString &pictureName)
{
    const TruthWriter writer(scene);
    QJsonObject truth{
        {"schema", "pipe-picture-truth/1"},
        {"scene", sceneName(scene.kind)},
        {"kind", measurementKind(scene.kind)},
        {"seed", qint64(scene.seed)},
        {"frame",
         "metres; origin in the centre of the mouth, the pipe along -z, "
         "in the picture +y up and +x to the left; clock positions in degrees "
         "clockwise from the top; 'scene' points are those of the pipe before it is turned"},
        {"picture", writer.picture(pictureName)},
        {"camera", writer.camera()},
        {"pipe", writer.pipe()},
        {"joints", writer.joints()},
        {"dimensions", writer.dimensions()}};
    if (scene.crack.widthMm > 0.0)
        truth["crack"] = writer.crack();
    if (scene.laser.distanceMm > 0.0)
        truth["laser"] = writer.laser();
    if (scene.waterShare > 0.0)
        truth["water"] = writer.water();
    if (scene.branch.share > 0.0)
        truth["branch"] = writer.branch();
    if (scene.bend.angleDeg > 0.0)
        truth["bend"] = writer.bend();
    if (scene.deposit.heightShare > 0.0)
        truth["section"] = writer.section();
    return truth;
}

} // namespace PipePicture
