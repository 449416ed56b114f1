#pragma once

#include "MeasurementEditor.h"

#include <QObject>
#include <QPolygonF>
#include <QString>
#include <QVariantList>

namespace Drevon::Zalento {

class PictureProvider;

/** How far the value on view can be trusted, and what would improve it. */
class Assessment : public QObject
{
    Q_OBJECT

    /** What makes the value uncertain, the largest first: {source, label, share}
        each. */
    Q_PROPERTY(QVariantList budget READ budget NOTIFY changed)
    /** The same in words: "clicks 86 %, pixels 7 %". */
    Q_PROPERTY(QString budgetText READ budgetText NOTIFY changed)
    /** What to improve first; empty without a value. */
    Q_PROPERTY(QString advice READ advice NOTIFY changed)
    /** What is said of the first value that the limit is held against; empty without a limit. */
    Q_PROPERTY(QString decision READ decision NOTIFY changed)
    /** Such as "< 0.5 mm"; empty for none. */
    Q_PROPERTY(QString limit READ limit NOTIFY changed)
    /** Mean and spread of the results so far; empty for fewer than two. */
    Q_PROPERTY(QString repeats READ repeats NOTIFY changed)
    Q_PROPERTY(bool canMeasureAgain READ canMeasureAgain NOTIFY changed)

    /** Around the selected point, in picture pixels: where it may lie, 95 percent. */
    Q_PROPERTY(QVariantList ellipse READ ellipse NOTIFY ellipseChanged)
    /** The same in the pipe: "Point 1: ± 3 mm around, ± 20 mm along the pipe". */
    Q_PROPERTY(QString pointText READ pointText NOTIFY ellipseChanged)

    /** What the map over the picture tells. */
    Q_PROPERTY(int map READ map NOTIFY mapChanged)
    Q_PROPERTY(QString mapTitle READ mapTitle NOTIFY mapChanged)
    Q_PROPERTY(QString mapSource READ mapSource NOTIFY mapChanged)
    /** {colour, text} each. */
    Q_PROPERTY(QVariantList mapLegend READ mapLegend CONSTANT)

public:
    enum Map { NoMap, ScaleMap, UncertaintyMap };
    Q_ENUM(Map)

    explicit Assessment(MeasurementEditor &editor);

    QVariantList budget() const;
    QString budgetText() const;
    QString advice() const;
    QString decision() const;
    QString limit() const;
    QString repeats() const;
    bool canMeasureAgain() const;

    QVariantList ellipse() const { return m_ellipse; }
    QString pointText() const { return m_pointText; }

    int map() const { return m_map; }
    QString mapTitle() const;
    QString mapSource() const;
    QVariantList mapLegend() const;

    /** Sets the session's limit. @return what is wrong with it; empty when it was taken */
    Q_INVOKABLE QString setLimit(const QString &text);
    /** The next map, or none after the last. */
    Q_INVOKABLE void showNextMap();

    /** Where the scene gets the map from; belongs to the scene. */
    void setMapProvider(PictureProvider *provider) { m_mapProvider = provider; }

Q_SIGNALS:
    void changed();
    void ellipseChanged();
    void mapChanged();

private:
    void follow();
    void findEllipse();
    void drawMap();
    const Measuring::Uncertainty *uncertainty() const;

    MeasurementEditor &m_editor;
    PictureProvider *m_mapProvider = nullptr;
    QVariantList m_ellipse;
    QString m_pointText;
    Map m_map = NoMap;
    int m_mapNumber = 0;
};

} // namespace Drevon::Zalento
