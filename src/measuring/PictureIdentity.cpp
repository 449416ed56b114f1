#include "measuring/PictureIdentity.h"

#include <tuple>

namespace Drevon::Zalento::Measuring {

bool operator==(const PictureIdentity &a, const PictureIdentity &b)
{
    return std::tie(a.path, a.size, a.sha256, a.unknownFields) ==
           std::tie(b.path, b.size, b.sha256, b.unknownFields);
}

} // namespace Drevon::Zalento::Measuring
