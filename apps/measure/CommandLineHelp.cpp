// The texts around the list of options.
#include "measure/CommandLine.h"

namespace Drevon::Zalento::Apps {

namespace {

const char *const introduction = R"(Usage:
  zalento-measure measure [options] PICTURE|SESSION|FOLDER|- ...
  zalento-measure measure [options] --session FILE
  zalento-measure render  [options] PICTURE|SESSION|FOLDER|- ...
  zalento-measure unroll  [options] PICTURE|SESSION|FOLDER|- ...
  zalento-measure lens    --board WxH --square MM --output FILE PICTURE|FOLDER|- ...
  zalento-measure report  [options] PICTURE|SESSION|FOLDER|- ... --output FILE.pdf
  zalento-measure kinds   [--format NAME]

Measures on pictures from inside pipes, without a display.

Verbs:
  measure  Prints the measured values; --overlay and --save-session write files, too.
  render   Writes the picture with the overlay (--overlay png unless said otherwise).
  unroll   Writes the pipe's wall as a flat picture to scale, <stem>.unrolled.png: --from and --to are
           distances from the mouth, --mm-per-pixel is its scale. Of the kind CrossSection the plane.
  lens     Calibrates a camera with its lens from pictures of a chessboard; --lens takes it.
  report   Writes one PDF file: a table of all pictures, then a page for each with the picture, its
           overlay, values, alignment and cross-section. --record names a file with place, pipe, date,
           operator and whatever else is to be told.
  kinds    Lists what can be measured, and the options that each kind takes.

Pictures:
  A PICTURE is measured with the session beside it (<picture>.zalento.json) when there is one; the
  options change what the session says. A SESSION names its picture. A FOLDER needs --recursive.
  With - the names stand on the standard input, one a line.
  A session can hold several measurements, each with its name: all are measured, --measurement takes
  one. Options of a measurement change that one, else the one that was chosen last in the session.

)";

const char *const conclusion = R"(
Values:
  Numbers are in mm, mm2, percent or degrees whatever --unit says, with '.' as decimal mark; the
  text before them has the unit that the overlay shows, and the expanded uncertainty (k = 2). Only
  values are printed on the standard output; messages go to the standard error. Bends and joints are measured in steps of 5 degrees.
  --click X,Y is a pixel of the upright picture, from its top left corner.

Environment:
  The locale changes nothing: neither numbers nor texts, and file names are UTF-8. No display is
  used and QT_QPA_PLATFORM is ignored. QT_QPA_FONTDIR and fontconfig's variables choose the font of
  the overlay's labels.

Exit codes:
  0  everything was measured
  1  at least one picture failed or gave no value
  2  wrong usage; nothing was read or written
  3  a session, a calibration, a lens, a record or a list could not be read, or a file or value not be
     written

Examples:
  zalento-measure measure --kind CrackWidth --laser 654,83 745,147 --click 695,106 --click 709,117 crack.jpg
  zalento-measure measure --kind PipeDimension --diameter 300 --click 191,153 --click 235,183 dimension.jpg
  zalento-measure measure --kind WaterLevel --percentage 25 --overlay png water.jpg
  zalento-measure measure --kind BranchAngle --angle 45 --percentage 50 --clock 90 branch.jpg
  zalento-measure measure --kind BendAngle --angle 30 --clock 90 --save-session bend.jpg
  zalento-measure measure --kind CrossSection --diameter 300 --percentage 10 --click 456,375 \
      --click 388,349 --click 277,419 --click 371,457 --click 490,419 --click 456,375 section.jpg
  zalento-measure report --recursive inspections/ --record record.json --output inspections.pdf
)";

} // namespace

// The parser's own text starts with a line on usage that knows no verbs.
QString helpText(const QCommandLineParser &parser)
{
    const QString options = parser.helpText();
    return QLatin1String(introduction) + options.mid(options.indexOf(QLatin1String("Options:"))) +
           QString::fromUtf8(conclusion);
}

} // namespace Drevon::Zalento::Apps
