#include "Viewer.h"

#include "FieldCatalogue.h"

// Qt tells only here whether the platform has a dialog; asking for one that is missing is an error.
#include <private/qguiapplication_p.h>
#include <qpa/qplatformtheme.h>

namespace Drevon::Zalento {

Viewer::Viewer()
    : m_kindFields(m_editor, Zalento::kindFields)
    , m_alignmentFields(m_editor, Zalento::alignmentFields)
{
    connect(&m_thumbnails, &Thumbnails::failed, &m_documents, &DocumentList::noteProblem);
}

void Viewer::retranslate()
{
    m_kinds.retranslate();
    m_kindFields.retranslate();
    m_alignmentFields.retranslate();
    m_editor.retranslate();
}

bool Viewer::hasPlatformDialogs() const
{
    const QPlatformTheme *theme = QGuiApplicationPrivate::platformTheme();
    return theme && theme->usePlatformNativeDialog(QPlatformTheme::FileDialog);
}

} // namespace Drevon::Zalento
