#include "ViewerWindow.h"

#include "Language.h"
#include "PictureProvider.h"
#include "ViewerTypes.h"

#include <zalento/item/registerTypes.h>

#include <QFont>
#include <QGuiApplication>
#include <QQuickStyle>
#include <QQuickWindow>

#include <mutex>

// The scene lies in a static library, whose resources are dropped unless they are asked for. The
// macro works outside of namespaces only.
static void keepScene()
{
    Q_INIT_RESOURCE(viewer);
    Q_INIT_RESOURCE(translations);
}

namespace Drevon::Zalento {

namespace {

// Under this name the engine knows the viewer.
const char *const viewerProperty = "viewer";

QObject *viewerOf(QQmlEngine *engine, QJSEngine *)
{
    auto *viewer = engine->property(viewerProperty).value<QObject *>();
    QQmlEngine::setObjectOwnership(viewer, QQmlEngine::CppOwnership);
    return viewer;
}

// Labels are drawn in the application's font, which platforms choose from 9 to 12 points: the size
// is that of zalento-measure's labels, which knows none but its own platform.
constexpr int labelPX = 17;

void setLabelFont()
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(labelPX);
    QGuiApplication::setFont(font);
}

// For the first window of the process.
void prepareScene()
{
    keepScene();
    setLabelFont();
    QQuickStyle::setStyle(QStringLiteral("Default"));
    constexpr char module[] = "Drevon.Zalento.Viewer";
    registerTypes("Drevon.Zalento");
    qmlRegisterAnonymousType<QAbstractItemModel>(module, 1); // of FileOrder's source
    qmlRegisterTypesAndRevisions<
        FileOrderType, PictureFilterType, OverlayViewType, StageViewType, PreferencesType,
        GuidanceType, DocumentListType, MeasurementEditorType, MeasurementModelType, AssessmentType,
        FilmBrowserType, FlatWallType, FeatureModelType, PointModelType, KindModelType,
        FieldModelType, CameraProfilesType, ExporterType, PipeRecordsType>(module, 1);
    qmlRegisterSingletonType<Viewer>(module, 1, 0, "Viewer", viewerOf);
}

} // namespace

ViewerWindow::ViewerWindow(Viewer &viewer)
{
    static std::once_flag sceneIsPrepared;
    std::call_once(sceneIsPrepared, prepareScene);

    auto *provider = new PictureProvider;
    viewer.documents()->setPictureProvider(provider);
    m_engine.addImageProvider(QStringLiteral("picture"), provider);
    auto *maps = new PictureProvider;
    viewer.assessment()->setMapProvider(maps);
    m_engine.addImageProvider(QStringLiteral("map"), maps);
    auto *films = new PictureProvider;
    viewer.film()->setProvider(films);
    m_engine.addImageProvider(QStringLiteral("film"), films);
    auto *walls = new PictureProvider;
    viewer.wall()->setProvider(walls);
    m_engine.addImageProvider(QStringLiteral("wall"), walls);
    m_engine.addImageProvider(QStringLiteral("thumbnail"),
                              new ThumbnailProvider(viewer.thumbnails()));
    m_engine.setProperty(viewerProperty, QVariant::fromValue<QObject *>(&viewer));
    const auto speak = [this, &viewer] {
        useLanguage(viewer.preferences()->language());
        viewer.retranslate();
        m_engine.retranslate();
    };
    // Later, for it replaces the menu's entries, one of which was just pressed.
    QObject::connect(viewer.preferences(), &Preferences::languageChanged, &m_engine, speak,
                     Qt::QueuedConnection);
    speak();
}

bool ViewerWindow::show()
{
    m_engine.load(QUrl(QStringLiteral("qrc:/viewer/Main.qml")));
    return window() != nullptr;
}

QQuickWindow *ViewerWindow::window() const
{
    const QObjectList roots = m_engine.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(roots.first());
}

} // namespace Drevon::Zalento
