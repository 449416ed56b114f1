#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"

#include <Eigen/Core>

#include <vector>

namespace Drevon::Zalento::Measuring {

/**
 * Where the numbers that a value depends on stand in a vector of inputs. The fields of the
 * alignment come first, in the order of AlignmentField; the pixels of the clicks follow, x and y of
 * each in turn.
 */
namespace ModelInput {
constexpr Eigen::Index diameterMM = alignmentFieldCount; ///< inner diameter of the pipe
constexpr Eigen::Index planePercent = diameterMM + 1;    ///< of a cross section
constexpr Eigen::Index setting = planePercent + 1;  ///< what is matched by eye: percent, degrees
constexpr Eigen::Index mmPerPixel = setting + 1;    ///< scale of a crack
constexpr Eigen::Index firstClick = mmPerPixel + 1; ///< x and y of each click follow
} // namespace ModelInput

/**
 * A session's values as a function of everything that they depend on: the whole way from the clicks
 * through the alignment to lengths and areas, for numbers between those that the overlay can draw.
 *
 * The alignment is the one that is drawn: with whole gesture units, and the far end where drawing
 * corrects it. A point counts as clicked where the model shows it now, whatever the alignment was
 * when it was clicked. Points on one place are one click, such as the first and the last one of a
 * closed outline.
 */
class ZALENTO_MEASURING_EXPORT MeasuringModel
{
public:
    /** @param session one that measures something, its points placed */
    explicit MeasuringModel(const Session &session);

    /** The inputs as they stand. */
    const Eigen::VectorXd &inputs() const { return m_inputs; }
    /** Measuring points that were clicked. */
    int clickCount() const
    {
        return static_cast<int>(m_inputs.size() - ModelInput::firstClick) / 2;
    }

    /** The values of measure(), in its order and units; not a number where a click meets nothing.
     */
    Eigen::VectorXd values(const Eigen::VectorXd &inputs) const;

private:
    Eigen::VectorXd lineValues(const Eigen::VectorXd &inputs) const;
    std::vector<Vec3> pickedPoints(const Eigen::VectorXd &inputs) const;

    Kind m_kind;
    QSize m_picture;
    double m_drawingWidthPX = 0.0;
    std::vector<Eigen::Index> m_clickOfPoint;
    Eigen::VectorXd m_inputs;
};

} // namespace Drevon::Zalento::Measuring
