#pragma once

#include "measuring/Result.h"

#include <QImage>
#include <QPointF>

#include <memory>

namespace Drevon::Zalento::Measuring {

/** How fast the light in a picture changes: its gradient, smoothed against noise. */
class PictureEdges
{
public:
    /** What is differentiated. Dark edges stand out of what is stored; a blurred edge is steepest
        where it is in light, up to a pixel towards the lighter side. */
    enum class Of { StoredValues, Light };

    /** @return a problem where the library was built without what this needs */
    static Result<std::shared_ptr<const PictureEdges>> of(const QImage &picture, Of what);
    virtual ~PictureEdges() = default;

    /** True where gradients can be asked for: a pixel from the border. */
    virtual bool contains(const QPointF &pixel) const = 0;
    /** In 255ths of the brightest a pixel, at a place between pixels, to the right and down. */
    virtual QPointF gradient(const QPointF &pixel) const = 0;
};

} // namespace Drevon::Zalento::Measuring
