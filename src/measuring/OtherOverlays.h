#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"

#include "zalento/item/ZaItem.h"

#include <QPainter>
#include <QRectF>
#include <QString>

#include <memory>
#include <vector>

namespace Drevon::Zalento::Measuring {

/**
 * What a session measures beside the measurand at hand, to be painted below its overlay; and the
 * names of all. The pipe, which is common to all, is drawn by the one at hand alone.
 */
class ZALENTO_MEASURING_EXPORT OtherOverlays
{
public:
    /**
     * On the GUI thread.
     * @param scale of lines and names, as for showSession()
     * @param display their colours; the units are the session's
     */
    OtherOverlays(const Session &session, double scale, const ZASettings &display = {});

    /** In picture pixels and the painter's font, which it gets back as it was. In any thread. */
    void paint(QPainter &painter) const;

private:
    struct Name
    {
        QRectF named;                 ///< the place of what it names, in picture pixels
        double linesFromMiddle = 0.0; ///< at least so many lines of text away
        double linesFromEdge = 0.0;
        QString text;
    };

    static Name nameOf(const Session &session);
    void paintName(QPainter &painter, const Name &name) const;

    double m_scale; ///< of lines and names

    std::vector<std::unique_ptr<ZaItem>> m_items;
    QVector<Name> m_names;
};

} // namespace Drevon::Zalento::Measuring
