// What a build without OpenCV says where it would need it.
#include "measuring/PictureEdges.h"

#include "measuring/Text.h"

namespace Drevon::Zalento::Measuring {

Result<std::shared_ptr<const PictureEdges>> PictureEdges::of(const QImage &, Of)
{
    return Problem{QStringLiteral("snap"),
                   Text::tr("this build has no OpenCV, which finds edges in pictures")};
}

} // namespace Drevon::Zalento::Measuring
