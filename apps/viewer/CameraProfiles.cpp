#include "CameraProfiles.h"

#include "measuring/LensEstimate.h"
#include "measuring/SessionJson.h"
#include "measuring/SessionLens.h"

#include <QUrl>

namespace Drevon::Zalento {

namespace {

// A name may hold characters that mean something in a key.
QString keyOf(const QString &name)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(name));
}

} // namespace

CameraProfiles::CameraProfiles(DocumentList &documents, MeasurementEditor &editor,
                               Guidance &guidance)
    : m_documents(documents)
    , m_editor(editor)
    , m_guidance(guidance)
{
    connect(&documents, &DocumentList::currentChanged, this, &CameraProfiles::namesChanged);
    connect(&editor, &MeasurementEditor::sessionChanged, this, &CameraProfiles::lensChanged);
}

// Profiles of one picture size lie together.
QString CameraProfiles::group() const
{
    const QSize size = m_documents.pictureSize();
    return QStringLiteral("Cameras/%1x%2").arg(size.width()).arg(size.height());
}

QStringList CameraProfiles::names() const
{
    m_settings.beginGroup(group());
    QStringList names;
    for (const QString &key : m_settings.childKeys()) {
        names += QUrl::fromPercentEncoding(key.toLatin1());
    }
    m_settings.endGroup();
    return names;
}

QVariant CameraProfiles::kept(const QString &name) const
{
    return m_settings.value(group() + QLatin1Char('/') + keyOf(name));
}

bool CameraProfiles::hasLens(const QString &name) const
{
    return bool(Measuring::lensFromJson(kept(name).toByteArray()));
}

// A lens is kept as it stands in a session, a field of view alone as a number.
void CameraProfiles::keep(const QString &name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty() || !m_editor.isReady()) {
        m_guidance.notice(Guidance::Warning, tr("A camera needs a name to be kept under."));
        return;
    }
    const Measuring::Session &session = *m_editor.session();
    QVariant known = session.fovYDEG;
    if (session.lens) {
        Measuring::Lens lens = *session.lens;
        lens.name = trimmed;
        known = QString::fromUtf8(Measuring::lensToJson(lens));
    }
    m_settings.setValue(group() + QLatin1Char('/') + keyOf(trimmed), known);
    Q_EMIT namesChanged();
    m_guidance.notice(Guidance::Information,
                      session.lens
                          ? tr("Kept: %1, with its lens.").arg(trimmed)
                          : tr("Kept: %1, field of view %2°.").arg(trimmed).arg(session.fovYDEG));
}

void CameraProfiles::apply(const QString &name)
{
    const QVariant known = kept(name);
    if (const auto lens = Measuring::lensFromJson(known.toByteArray())) {
        takeLens(tr("Camera %1").arg(name), *lens);
        return;
    }
    bool isNumber = false;
    const double fovYDEG = known.toDouble(&isNumber);
    if (isNumber) {
        takeFov(name, fovYDEG);
    }
}

void CameraProfiles::takeFov(const QString &name, double fovYDEG)
{
    if (!m_editor.isReady()) {
        return;
    }
    Measuring::Session session = *m_editor.session();
    session.fovYDEG = fovYDEG;
    session.fitsFov = false;
    if (const auto problem = Measuring::checkSession(session)) {
        m_guidance.notice(Guidance::Error, problem->text());
        return;
    }
    m_editor.change(tr("Camera %1").arg(name), session, MeasurementEditor::Moves::Model);
}

void CameraProfiles::remove(const QString &name)
{
    m_settings.remove(group() + QLatin1Char('/') + keyOf(name));
    Q_EMIT namesChanged();
}

// The lens of the picture on view

QString CameraProfiles::lensName() const
{
    const Measuring::Session *session = m_editor.session();
    if (!session || !session->lens) {
        return {};
    }
    return session->lens->name.isEmpty() ? tr("without a name") : session->lens->name;
}

bool CameraProfiles::showsAll() const
{
    const Measuring::Session *session = m_editor.session();
    return session && session->lens && session->lens->view == Measuring::LensView::All;
}

void CameraProfiles::setShowsAll(bool all)
{
    if (!m_editor.isReady() || !m_editor.session()->lens || all == showsAll()) {
        return;
    }
    Measuring::Lens lens = *m_editor.session()->lens;
    lens.view = all ? Measuring::LensView::All : Measuring::LensView::Square;
    takeLens(tr("View of the lens"), lens);
}

void CameraProfiles::loadLens(const QString &path)
{
    const auto lens = Measuring::loadLens(path);
    if (!lens) {
        m_guidance.notice(Guidance::Error, lens.problem().text());
        return;
    }
    if (takeLens(tr("Lens"), *lens)) {
        m_guidance.notice(Guidance::Information,
                          tr("The picture is shown without the distortion of %1.").arg(lens->name));
    }
}

void CameraProfiles::estimateLens()
{
    if (!m_editor.isReady()) {
        return;
    }
    const auto estimate = Measuring::estimateRadial(*m_editor.session());
    if (!estimate) {
        m_guidance.notice(Guidance::Warning, estimate.problem().what);
        return;
    }
    if (takeLens(tr("Lens from joints"), estimate->lens)) {
        m_guidance.notice(Guidance::Information,
                          tr("The lens was estimated from the joints: k1 is %1, with a standard "
                             "uncertainty of %2.")
                              .arg(estimate->k1, 0, 'g', 3)
                              .arg(estimate->standardUncertainty, 0, 'g', 2));
    }
}

void CameraProfiles::removeLens()
{
    takeLens(tr("Without a lens"), std::nullopt);
}

bool CameraProfiles::takeLens(const QString &step, const std::optional<Measuring::Lens> &lens)
{
    if (!m_editor.isReady()) {
        return false;
    }
    Measuring::Session session = *m_editor.session();
    if (const auto problem = Measuring::takeLens(session, lens)) {
        m_guidance.notice(Guidance::Error, problem->text());
        return false;
    }
    m_editor.change(step, session, MeasurementEditor::Moves::Model);
    return true;
}

} // namespace Drevon::Zalento
