#pragma once

#include "MeasurementEditor.h"

#include "measuring/Unrolling.h"

#include <QObject>
#include <QPointF>
#include <QSize>
#include <QString>
#include <QVariantList>

#include <optional>

namespace Drevon::Zalento {

class PictureProvider;

/** The pipe's wall, or the cross-section plane, as a flat picture beside the one on view. */
class FlatWall : public QObject
{
    Q_OBJECT

    Q_PROPERTY(bool isShown READ isShown WRITE setIsShown NOTIFY isShownChanged)
    /** Why there is none, for the operator; empty when there is one. */
    Q_PROPERTY(QString problem READ problem NOTIFY wallChanged)
    Q_PROPERTY(QString source READ source NOTIFY wallChanged)
    /** In pixels of the flat picture. */
    Q_PROPERTY(QSize size READ size NOTIFY wallChanged)
    Q_PROPERTY(bool isPlane READ isPlane NOTIFY wallChanged)
    /** How far from the mouth the wall reaches. */
    Q_PROPERTY(double lengthMM READ lengthMM NOTIFY wallChanged)
    /** The measurement's points, in pixels of the flat picture. */
    Q_PROPERTY(QVariantList points READ points NOTIFY pointsChanged)

public:
    FlatWall(DocumentList &documents, MeasurementEditor &editor);

    bool isShown() const { return m_isShown; }
    void setIsShown(bool shown);
    QString problem() const { return m_problem; }
    QString source() const;
    QSize size() const { return m_unrolling ? m_unrolling->size() : QSize(); }
    bool isPlane() const { return m_unrolling && m_unrolling->isPlane(); }
    double lengthMM() const { return m_unrolling ? m_unrolling->range().toMM : 0.0; }
    QVariantList points() const;

    /** Clicks the picture where it shows this place of the flat one. */
    Q_INVOKABLE void click(const QPointF &flat);

    /** Where the scene gets the flat picture from; belongs to the scene. */
    void setProvider(PictureProvider *provider) { m_provider = provider; }

Q_SIGNALS:
    void isShownChanged();
    void wallChanged();
    void pointsChanged();

private:
    void follow();
    void flatten();

    DocumentList &m_documents;
    MeasurementEditor &m_editor;
    PictureProvider *m_provider = nullptr;
    bool m_isShown = false;
    std::optional<Measuring::Session> m_flattened; ///< the session without its points
    std::optional<Measuring::Unrolling> m_unrolling;
    QString m_problem;
    int m_number = 0;
};

} // namespace Drevon::Zalento
