// What a build without OpenCV says where it would need it.
#include "measuring/Lens.h"
#include "measuring/PictureEdges.h"

#include "measuring/Text.h"

namespace Drevon::Zalento::Measuring {

Result<std::shared_ptr<const PictureEdges>> PictureEdges::of(const QImage &, Of)
{
    return Problem{QStringLiteral("snap"),
                   Text::tr("this build has no OpenCV, which finds edges in pictures")};
}

Result<QImage> undistorted(const QImage &, const Lens &)
{
    return Problem{QStringLiteral("lens"),
                   Text::tr("this build has no OpenCV, which undistorts pictures")};
}

Result<Lens> loadLens(const QString &path)
{
    return Problem{path, Text::tr("this build has no OpenCV, which reads files of lenses")};
}

} // namespace Drevon::Zalento::Measuring
