#pragma once

#include "measuring/MeasuringModel.h"

#include <QPointF>

#include <optional>
#include <vector>

namespace Drevon::Zalento::Measuring {

/**
 * The drawn curve by which an operator sets a value: the water's edge, the ring of the plane, the
 * mouth of a branch, the ends of a bend or a joint; as the picture shows it, in pixels.
 *
 * Only what a curve moves across itself can be seen. Curves are compared point by point, with
 * weights by the length of the curve around a point.
 */
class ZALENTO_MEASURING_EXPORT MatchedCurve
{
public:
    /** @param session of a kind with a setting; for a cross section the depth of the plane */
    explicit MatchedCurve(const Session &session);

    /** Whether the curve can be moved at all: not for a plane that lies in the mouth. */
    bool isSet() const { return m_isSet; }

    /** Place in the inputs of what moves the curve. */
    Eigen::Index setting() const { return m_setting; }

    /**
     * How far the setting has to move, in its unit, for the curve to move by @p px, root mean
     * square: the mean of both directions, or of the one that its limits leave. At most the way to
     * the farther limit, where the curve never moves so far.
     */
    double settingFor(const Eigen::VectorXd &inputs, double px) const;

    /** How the setting that matches the picture follows when the inputs move by @p shift and the
        picture stays (first order, least squares). */
    double response(const Eigen::VectorXd &inputs, const Eigen::VectorXd &shift) const;

    /** The curve in the picture, point by point; not a number between two curves and behind the
        camera. */
    std::vector<QPointF> pixels(const Eigen::VectorXd &inputs) const;

private:
    std::vector<Vec3> places(double setting) const;
    Eigen::VectorXd moves(const std::vector<QPointF> &from, const std::vector<QPointF> &to) const;
    Eigen::VectorXd movesBy(const Eigen::VectorXd &inputs, const Eigen::VectorXd &shift) const;
    std::optional<double> wayToMove(const Eigen::VectorXd &inputs, double px, double largest) const;

    Session m_session;
    Eigen::Index m_setting;
    double m_smallest = 0.0;
    double m_largest = 0.0;
    bool m_isSet = true;
};

} // namespace Drevon::Zalento::Measuring
