#include "CameraProfiles.h"

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

void CameraProfiles::keep(const QString &name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty() || !m_editor.isReady()) {
        m_guidance.notice(Guidance::Warning, tr("A camera needs a name to be kept under."));
        return;
    }
    const double fovYDEG = m_editor.session()->fovYDEG;
    m_settings.setValue(group() + QLatin1Char('/') + keyOf(trimmed), fovYDEG);
    Q_EMIT namesChanged();
    m_guidance.notice(Guidance::Information,
                      tr("Kept: %1, field of view %2°.").arg(trimmed).arg(fovYDEG));
}

void CameraProfiles::apply(const QString &name)
{
    bool isNumber = false;
    const double fovYDEG =
        m_settings.value(group() + QLatin1Char('/') + keyOf(name)).toDouble(&isNumber);
    if (!m_editor.isReady() || !isNumber) {
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

} // namespace Drevon::Zalento
