#include "FilmBrowser.h"

#include "FieldCatalogue.h"
#include "PictureProvider.h"

#include "measuring/OutputFile.h"
#include "measuring/Picture.h"
#include "measuring/SessionFile.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

constexpr int secondsPerMinute = 60;

} // namespace

FilmBrowser::FilmBrowser(DocumentList &documents, Preferences &preferences, Guidance &guidance)
    : m_documents(documents)
    , m_preferences(preferences)
    , m_guidance(guidance)
{
    connect(&documents, &DocumentList::filmOpened, this, [this](const auto &path) { open(path); });
    connect(&documents, &DocumentList::currentChanged, this, &FilmBrowser::isAvailableChanged);
    connect(this, &FilmBrowser::filmChanged, this, &FilmBrowser::isAvailableChanged);
    m_reader.moveToThread(&m_thread);
    m_thread.start();
}

FilmBrowser::~FilmBrowser()
{
    m_thread.quit();
    m_thread.wait();
}

void FilmBrowser::setIsShown(bool shown)
{
    const bool isToShow = shown && isOpen();
    if (isToShow != m_isShown) {
        m_isShown = isToShow;
        Q_EMIT isShownChanged();
    }
}

QString FilmBrowser::timeText() const
{
    const double seconds = m_frame.seconds;
    const int minutes = static_cast<int>(seconds) / secondsPerMinute;
    return QStringLiteral("%1:%2").arg(minutes).arg(seconds - minutes * secondsPerMinute, 6, 'f', 3,
                                                    QLatin1Char('0'));
}

QString FilmBrowser::source() const
{
    return m_image.isNull() ? QString() : QStringLiteral("image://film/%1").arg(m_imageNumber);
}

// Opening

std::optional<Measuring::FilmFrame> FilmBrowser::filmOfPicture() const
{
    const Document *document = m_documents.current();
    return document && document->session ? document->session->film : std::nullopt;
}

void FilmBrowser::goBack()
{
    const auto film = filmOfPicture();
    if (film && QFileInfo(film->path) != QFileInfo(m_path)) {
        open(film->path, film->number);
    } else {
        setIsShown(true);
    }
}

void FilmBrowser::open(const QString &path, int frame)
{
    m_guidance.notice(Guidance::Information, tr("Reading %1…").arg(shortName(path)));
    QMetaObject::invokeMethod(&m_reader, [this, path, frame] {
        auto read = Measuring::Film::open(path);
        const auto film = read ? std::make_shared<Measuring::Film>(std::move(*read)) : nullptr;
        const QString problem = read ? QString() : read.problem().text();
        QMetaObject::invokeMethod(this, [=] {
            film ? opened(path, film, frame) : m_guidance.notice(Guidance::Error, problem);
        });
    });
}

void FilmBrowser::opened(const QString &path, const Film &film, int frame)
{
    m_guidance.clearNotice();
    m_preferences.addRecentFile(path);
    m_preferences.setFolder(QFileInfo(path).absolutePath());
    m_path = path;
    m_film = film;
    m_frameCount = film->frameCount();
    m_wanted.reset();
    Q_EMIT filmChanged();
    setIsShown(true);
    show(frame);
}

// Showing

void FilmBrowser::show(int number)
{
    if (!isOpen()) {
        return;
    }
    const int wanted = std::clamp(number, 0, m_frameCount - 1);
    if (m_isBusy) {
        m_wanted = wanted;
    } else {
        request(wanted);
    }
}

void FilmBrowser::request(int number)
{
    m_isBusy = true;
    QMetaObject::invokeMethod(&m_reader, [this, number, path = m_path, film = m_film] {
        const auto image = film->frame(number);
        const Measuring::FilmFrame frame{path, number, film->secondsOf(number), {}};
        QMetaObject::invokeMethod(this, [=] { shown(frame, image); });
    });
}

void FilmBrowser::shown(const Measuring::FilmFrame &frame, const Measuring::Result<QImage> &image)
{
    m_isBusy = false;
    m_frame = frame;
    m_image = image ? *image : QImage();
    m_problem = image ? QString() : image.problem().textAfter(frame.path);
    ++m_imageNumber;
    if (m_provider) {
        m_provider->setPicture(m_image);
    }
    Q_EMIT frameChanged();
    if (m_wanted) {
        request(*m_wanted);
        m_wanted.reset();
    }
}

// Taking

QString FilmBrowser::take(const QString &counter)
{
    if (m_image.isNull()) {
        return m_problem;
    }
    const auto counterM = readField(fieldNamed(QStringLiteral("counterM"), {}), counter);
    if (!counterM) {
        return counterM.problem().text();
    }
    const QString path = Measuring::framePathOf(m_frame.path, m_frame.seconds);
    if (const auto problem = writePicture(path)) {
        return problem->text();
    }
    if (const auto problem = writeSession(path, *counterM)) {
        return problem->text();
    }
    setIsShown(false);
    m_documents.openPaths({path});
    return {};
}

Measuring::Outcome FilmBrowser::writePicture(const QString &path) const
{
    return QFileInfo::exists(path) ? std::nullopt
                                   : Measuring::writeFile(path, Measuring::pngBytes(m_image),
                                                          Measuring::Overwrite::Refuse);
}

// It is saved at once: nothing else knows where the picture is from. One that is there may be under
// way, and stays as it is.
Measuring::Outcome FilmBrowser::writeSession(const QString &picturePath,
                                             std::optional<double> counterM) const
{
    const QString path = Measuring::sessionPathOf(picturePath);
    if (QFileInfo::exists(path)) {
        return counterM
                   ? Measuring::Problem{{},
                                        tr("This frame is a picture already: leave the counter "
                                           "empty, and change it there.")}
                   : Measuring::Outcome();
    }
    const auto picture = Measuring::loadPicture(picturePath);
    if (!picture) {
        return picture.problem();
    }
    Measuring::Session session = m_documents.newSession(picture->identity);
    session.film = m_frame;
    session.counterM = counterM;
    return Measuring::saveSession(session, path, Measuring::Overwrite::Refuse);
}

} // namespace Drevon::Zalento
