#include "DocumentList.h"

#include "Thumbnails.h"

#include "measuring/Count.h"
#include "measuring/Editing.h"
#include "measuring/Film.h"
#include "measuring/Kind.h"
#include "measuring/Measurands.h"
#include "measuring/Replay.h"
#include "measuring/SessionFile.h"
#include "measuring/SessionFit.h"
#include "measuring/SessionLens.h"

#include <QFileInfo>

#include <algorithm>

namespace Drevon::Zalento {

using Measuring::Session;

QString shortName(const QString &path)
{
    return QFileInfo(path).fileName();
}

namespace {

const QLatin1String sessionEnd(".json");

// A drawing or a text that was chosen together with pictures is told, and not listed among them.
Measuring::Outcome otherFile(const QString &path)
{
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1();
    if (Measuring::pictureFormats().contains(suffix)) {
        return {};
    }
    const auto picture = Measuring::loadPicture(path);
    if (picture) {
        return {};
    }
    return Measuring::Problem{shortName(path), picture.problem().textAfter(path)};
}

// A lens holds for pictures of its size.
void dropForeignLens(Session &session)
{
    if (session.lens && session.lens->size != session.picture.size) {
        session.lens.reset();
    }
}

} // namespace

QDateTime stampOf(const QString &path)
{
    return QFileInfo(path).lastModified();
}

DocumentList::DocumentList(Preferences &preferences, Guidance &guidance)
    : m_preferences(preferences)
    , m_guidance(guidance)
{
    connect(&m_survey, &PictureSurvey::found, this, &DocumentList::noteFindings);
}

DocumentList::~DocumentList() = default;

// What is on view

Document *DocumentList::current() const
{
    return m_index < 0 ? nullptr : m_documents[static_cast<std::size_t>(m_index)].get();
}

double DocumentList::overlayScale() const
{
    return Measuring::overlayScale(pictureSize());
}

QString DocumentList::pictureSource() const
{
    return m_picture ? QStringLiteral("image://picture/%1").arg(m_pictureNumber) : QString();
}

QString DocumentList::pictureName() const
{
    return current() ? shortName(current()->picturePath) : QString();
}

QString DocumentList::pictureProblem() const
{
    const bool isTrouble = current() && !current()->problem.isEmpty();
    return isTrouble ? Measuring::Problem{pictureName(), current()->problem}.text() : QString();
}

// Opening

void DocumentList::openUrls(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    openPaths(paths);
}

QStringList DocumentList::namePatterns() const
{
    return Measuring::pictureNamePatterns() + Measuring::filmNamePatterns() +
           QStringList{QLatin1Char('*') + QLatin1String(Measuring::sessionSuffix)};
}

void DocumentList::openPaths(const QStringList &paths)
{
    QStringList pictures = paths;
    const auto films =
        std::stable_partition(pictures.begin(), pictures.end(), [](const auto &path) {
            return QFileInfo(path).isDir() || !Measuring::isFilm(path);
        });
    const QString film = films == pictures.end() ? QString() : pictures.last();
    pictures.erase(films, pictures.end());
    openPictures(pictures);
    if (!film.isEmpty()) {
        Q_EMIT filmOpened(film);
    }
}

void DocumentList::openPictures(const QStringList &paths)
{
    QStringList problems;
    int firstShown = -1;
    for (const QString &path : paths) {
        const QStringList pictures =
            QFileInfo(path).isDir() ? Measuring::picturesIn(path, false) : QStringList{path};
        for (const QString &picture : pictures) {
            const Measuring::Result<int> index = append(picture);
            if (!index) {
                problems += index.problem().text();
            } else if (firstShown < 0) {
                firstShown = *index;
            }
        }
    }
    if (firstShown >= 0) {
        show(firstShown);
    }
    if (!problems.isEmpty()) {
        m_guidance.notice(Guidance::Error, problems.join(QLatin1Char(' ')));
    } else if (firstShown < 0 && !paths.isEmpty()) {
        m_guidance.notice(Guidance::Warning,
                          tr("There are no pictures in %1.").arg(shortName(paths.first())));
    }
}

// A session stands for its picture.
Measuring::Result<int> DocumentList::append(const QString &path)
{
    QString picturePath = path;
    QString sessionPath;
    if (path.endsWith(sessionEnd, Qt::CaseInsensitive)) {
        const auto session = Measuring::loadSession(path);
        if (!session) {
            return session.problem();
        }
        if (session->picture.path.isEmpty()) {
            return Measuring::Problem{{}, tr("%1 names no picture.").arg(path)};
        }
        picturePath = session->picture.path;
        sessionPath = path;
    } else if (const Measuring::Outcome problem = otherFile(path)) {
        return *problem;
    }
    const int index = indexOf(picturePath);
    if (index >= 0) {
        return index;
    }
    beginInsertRows({}, count(), count());
    m_documents.push_back(std::make_unique<Document>(picturePath));
    Document &document = *m_documents.back();
    if (!sessionPath.isEmpty()) {
        document.sessionPath = sessionPath;
    }
    m_indices.insert(QFileInfo(picturePath).absoluteFilePath(), count() - 1);
    endInsertRows();
    Q_EMIT countChanged();
    m_survey.look(picturePath, document.sessionPath);
    return count() - 1;
}

int DocumentList::indexOf(const QString &picturePath) const
{
    return m_indices.value(QFileInfo(picturePath).absoluteFilePath(), -1);
}

// Showing

void DocumentList::show(int index)
{
    if (index < 0 || index >= count()) {
        return;
    }
    Q_EMIT currentAboutToChange();
    m_guidance.clearNotice();
    const Session fresh = newSession();
    m_index = index;
    Document &document = *current();
    loadPicture(document);
    if (m_picture) {
        startSession(document, fresh);
    }
    showPicture();
    Q_EMIT currentChanged();
    Q_EMIT dataChanged(this->index(m_index), this->index(m_index));
}

void DocumentList::loadPicture(Document &document)
{
    const auto picture = Measuring::loadPicture(document.picturePath);
    m_picture.reset();
    document.problem = picture ? QString() : picture.problem().textAfter(document.picturePath);
    if (picture) {
        m_picture = *picture;
    }
    if (!m_picture) {
        m_guidance.notice(Guidance::Error, pictureProblem());
        return;
    }
    if (m_picture->frames > 1) {
        m_guidance.notice(Guidance::Warning, tr("%1 has %n frames, of which this is the first.",
                                                nullptr, m_picture->frames)
                                                 .arg(pictureName()));
    }
    document.pictureStamp = stampOf(document.picturePath);
    m_preferences.addRecentFile(document.picturePath);
    m_preferences.setFolder(QFileInfo(document.picturePath).absolutePath());
}

// Another lens makes another picture.
void DocumentList::showPicture()
{
    m_shownPicture = m_picture ? m_picture->image : QImage();
    m_shownLens = m_picture ? current()->session->lens : std::nullopt;
    if (m_shownLens) {
        const auto shown = Measuring::shownPicture(*current()->session, m_shownPicture);
        if (shown) {
            m_shownPicture = *shown;
        } else {
            m_guidance.notice(Guidance::Error, shown.problem().text());
        }
    }
    ++m_pictureNumber;
    if (m_provider) {
        m_provider->setPicture(m_shownPicture);
    }
    Q_EMIT pictureChanged();
}

void DocumentList::showLens()
{
    if (m_picture && current()->session->lens != m_shownLens) {
        showPicture();
    }
}

void DocumentList::startSession(Document &document, const Session &fresh)
{
    if (!document.session) {
        document.session = fresh;
        document.session->picture = m_picture->identity;
        dropForeignLens(*document.session);
        loadSession(document);
    } else {
        takeOverPicture(document);
    }
    fitAlignment(document);
    placePoints(document);
}

// Saved measurements are taken up; what cannot be read, or belongs to another picture, is not
// overwritten without a question.
void DocumentList::loadSession(Document &document)
{
    if (!QFileInfo::exists(document.sessionPath)) {
        return;
    }
    const auto saved = Measuring::loadSession(document.sessionPath);
    if (!saved) {
        const QString problem = saved.problem().text();
        document.overwriteWarning =
            tr("The session that is there cannot be read (%1). Saving replaces it.").arg(problem);
        m_guidance.notice(Guidance::Error, tr("The saved session cannot be read: %1").arg(problem));
        return;
    }
    document.session = *saved;
    document.sessionStamp = stampOf(document.sessionPath);
    takeOverPicture(document);
}

// What was measured on another picture is taken over to the one on view.
void DocumentList::takeOverPicture(Document &document)
{
    Session &session = *document.session;
    const auto difference = Measuring::pictureDifference(session.picture, m_picture->identity);
    if (difference) {
        document.overwriteWarning = tr("The measurement in %1 was made on another picture: %2. "
                                       "Saving takes it over to this one.")
                                        .arg(shortName(document.sessionPath), *difference);
        m_guidance.notice(
            Guidance::Warning,
            tr("Careful, %1. Nothing is overwritten until you confirm it.").arg(*difference));
        session.film.reset();
        session.counterM.reset();
    }
    session.picture = m_picture->identity;
    dropForeignLens(session);
}

// The same clicks give the same alignment; a file that was written by hand gets it here.
void DocumentList::fitAlignment(Document &document)
{
    if (!Measuring::hasAlignmentClicks(*document.session)) {
        return;
    }
    const auto fit = Measuring::fitSession(*document.session);
    if (!fit) {
        m_guidance.notice(Guidance::Warning, fit.problem().text());
    }
}

void DocumentList::placePoints(Document &document)
{
    int missed = 0;
    Measuring::forEachMeasurand(*document.session, [&missed](Session &session) {
        missed += Measuring::countOf(Measuring::placePoints(session));
    });
    if (missed > 0) {
        m_guidance.notice(
            Guidance::Warning,
            tr("%n point(s) of the session meet no wall and were left out.", nullptr, missed));
    }
}

Session DocumentList::newSession() const
{
    Session fresh;
    if (current() && current()->session) {
        const Session &last = *current()->session;
        Measuring::startKind(fresh, last.kind);
        fresh.standardUncertainties = last.standardUncertainties;
        fresh.limit = last.limit;
        fresh.unit = last.unit;
        fresh.diameterMM = last.diameterMM;
        fresh.fovYDEG = last.fovYDEG;
        fresh.lens = last.lens;
        fresh.calibrationText = last.calibrationText;
        return fresh;
    }
    const ZASettings display = m_preferences.displaySettings();
    fresh.unit = display.MeasureUnit;
    fresh.fovYDEG = display.fovYDEG;
    fresh.diameterMM = display.pipeDiameterMM;
    return Measuring::checkSession(fresh) ? Session() : fresh;
}

Session DocumentList::newSession(const Measuring::PictureIdentity &picture) const
{
    Session fresh = newSession();
    fresh.picture = picture;
    dropForeignLens(fresh);
    return fresh;
}

// The list

void DocumentList::noteModified()
{
    const auto unsaved = static_cast<int>(
        std::count_if(m_documents.begin(), m_documents.end(),
                      [](const auto &document) { return document->isModified(); }));
    if (m_index >= 0) {
        Document &document = *current();
        document.isMeasured = document.session && Zalento::isMeasured(*document.session);
        noteStateOf(m_index);
    }
    if (unsaved != m_unsavedCount) {
        m_unsavedCount = unsaved;
        Q_EMIT dataChanged(index(0), index(count() - 1), {ModifiedRole});
        Q_EMIT unsavedCountChanged();
    }
}

void DocumentList::noteFindings(const QString &picturePath, const PictureFindings &findings)
{
    const int found = indexOf(picturePath);
    if (found >= 0 && !at(found).session) {
        at(found).isMeasured = findings.isMeasured;
        noteStateOf(found);
    }
    if (!findings.problem.isEmpty()) {
        noteProblem(picturePath, findings.problem);
    }
}

void DocumentList::noteProblem(const QString &picturePath, const QString &problem)
{
    const int found = indexOf(picturePath);
    if (found >= 0) {
        at(found).foundProblem = problem;
        noteStateOf(found);
    }
}

void DocumentList::noteStateOf(int index)
{
    const QModelIndex row = this->index(index);
    Q_EMIT dataChanged(row, row, {ModifiedRole, MeasuredRole, ProblemRole});
}

int DocumentList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant DocumentList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Document &document = *m_documents[static_cast<std::size_t>(index.row())];
    switch (role) {
    case NumberRole:
        return index.row() + 1;
    case NameRole:
        return shortName(document.picturePath);
    case PathRole:
        return document.picturePath;
    case ModifiedRole:
        return document.isModified();
    case MeasuredRole:
        return document.isMeasured;
    case ProblemRole:
        return document.trouble();
    case ThumbnailRole:
        return Thumbnails::sourceOf(document.picturePath);
    default:
        return {};
    }
}

QHash<int, QByteArray> DocumentList::roleNames() const
{
    return {{NumberRole, "number"},       {NameRole, "name"},           {PathRole, "path"},
            {ModifiedRole, "isModified"}, {MeasuredRole, "isMeasured"}, {ProblemRole, "problem"},
            {ThumbnailRole, "thumbnail"}};
}

} // namespace Drevon::Zalento
