#include "measuring/LensEstimate.h"

#include "measuring/Count.h"
#include "measuring/FitPlan.h"
#include "measuring/FitStart.h"
#include "measuring/SessionFit.h"
#include "measuring/SessionLens.h"
#include "measuring/StandardUncertainties.h"
#include "measuring/Text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double radiansPerDegree = 0.017453292519943295;
// Of k1 times the squared radius of the farthest click: beyond the smallest, a barrel turns back
// before it (at 4 / 27); beyond the largest there is no lens.
constexpr double smallestBend = -0.14;
constexpr double largestBend = 0.42;
constexpr int searchSteps = 28;
// A golden section takes as many to a millionth of the step.
constexpr int goldenSteps = 30;
constexpr double goldenShare = 0.6180339887498949;
// Over this much of the bend the sum of squares is a parabola.
constexpr double curvatureBend = 0.004;
// Clicks that lie farther off pull linearly in the first search, so that wrong ones do not decide
// it.
constexpr double hubersBendPX = 2.0;
// An estimate nearer to nothing than this many of its standard uncertainties tells nothing.
constexpr double smallestStandoff = 2.0;

Problem problemWith(const QString &what)
{
    return {QStringLiteral("lens"), what};
}

// What the clicks are worth with one coefficient.
struct Trial
{
    double loss = std::numeric_limits<double>::infinity(); // px² in the picture as it was taken
    double fovYDEG = 0.0;                                  // of the picture that is shown
    int degreesOfFreedom = 0;
};

class RadialSearch
{
public:
    RadialSearch(const Session &session, FitLoss loss)
        : m_session(session)
        , m_loss(loss)
    {
        m_session.points.clear();
        m_session.laserSpots.clear();
        const QSize size = session.picture.size;
        const double halfSide = 0.5 * std::min(size.width(), size.height());
        m_focalPX = halfSide / std::tan(0.5 * session.fovYDEG * radiansPerDegree);
        double farthestPX = 1.0;
        for (const RingClicks &ring : session.rings) {
            for (const QPointF &click : ring.points) {
                farthestPX = std::max(farthestPX, std::hypot(click.x() - 0.5 * size.width(),
                                                             click.y() - 0.5 * size.height()));
            }
        }
        m_k1PerBend = m_focalPX * m_focalPX / (farthestPX * farthestPX);
    }

    /** With the smallest loss; nothing where none is inside of the range. */
    std::optional<double> best() const
    {
        const double step = (largestBend - smallestBend) / searchSteps;
        int bestStep = 0;
        double smallest = std::numeric_limits<double>::infinity();
        for (int i = 0; i <= searchSteps; ++i) {
            const double loss = lossOf(smallestBend + i * step);
            if (loss < smallest) {
                smallest = loss;
                bestStep = i;
            }
        }
        if (bestStep == 0 || bestStep == searchSteps) {
            return std::nullopt;
        }
        const double middle = smallestBend + bestStep * step;
        return bestBetween(middle - step, middle + step) * m_k1PerBend;
    }

    RadialEstimate estimate(double k1) const
    {
        const Trial at = trial(k1);
        const double step = curvatureBend * m_k1PerBend;
        const double curvature =
            (trial(k1 + step).loss - 2.0 * at.loss + trial(k1 - step).loss) / (step * step);
        const double spreadPX = std::max(inputUncertainties(m_session).clickPX,
                                         std::sqrt(at.loss / at.degreesOfFreedom));
        // Half the curvature is the inverse of the variance for clicks of variance 1 px².
        RadialEstimate estimate{lensWith(k1), k1, spreadPX * std::sqrt(2.0 / curvature)};
        if (m_session.fitsFov) {
            takeFocalLength(at.fovYDEG, estimate);
        }
        return estimate;
    }

    int degreesOfFreedom() const { return trial(0.0).degreesOfFreedom; }

    Lens lensWith(double k1) const
    {
        const QSize size = m_session.picture.size;
        constexpr double halfPixel = 0.5;
        return {Text::tr("estimated from joints"),
                size,
                {m_focalPX, 0, size.width() * 0.5 - halfPixel, 0, m_focalPX,
                 size.height() * 0.5 - halfPixel, 0, 0, 1},
                {k1, 0, 0, 0},
                LensView::Square,
                {},
                {}};
    }

private:
    double lossOf(double bend) const { return trial(bend * m_k1PerBend).loss; }

    double bestBetween(double low, double high) const
    {
        double left = high - goldenShare * (high - low);
        double right = low + goldenShare * (high - low);
        double leftLoss = lossOf(left);
        double rightLoss = lossOf(right);
        for (int i = 0; i < goldenSteps; ++i) {
            if (leftLoss < rightLoss) {
                high = right;
                right = left;
                rightLoss = leftLoss;
                left = high - goldenShare * (high - low);
                leftLoss = lossOf(left);
            } else {
                low = left;
                left = right;
                leftLoss = rightLoss;
                right = low + goldenShare * (high - low);
                rightLoss = lossOf(right);
            }
        }
        return 0.5 * (low + high);
    }

    Trial trial(double k1) const
    {
        Session straight = m_session;
        if (takeLens(straight, lensWith(k1))) {
            return {};
        }
        const AlignmentClicks clicks{straight.rings, straight.lines, m_session.fitsFov};
        FitProblem numbers{straight.picture.size, straight.diameterMM, {}, {}, {}};
        const AlignmentNumbers fields = alignmentOf(straight).numbers();
        numbers.values.assign(fields.begin(), fields.end());
        numbers.values.resize(placeOfLine(clicks, countOf(clicks.lines)));
        const FitTargets targets = possibleTargets(clicks);
        const FitProblem problem = problemFor(clicks, numbers, targets);
        Trial best;
        best.degreesOfFreedom = problem.degreesOfFreedom() - 1; // the coefficient is free, too
        for (const std::vector<double> &values : startingValues(problem, targets)) {
            FitProblem candidate = problem;
            candidate.values = values;
            const bool isFitted = minimize(candidate, m_loss).converged;
            const double loss = isFitted ? takenLoss(candidate, *straight.lens) : best.loss;
            if (loss < best.loss) {
                best.loss = loss;
                best.fovYDEG = candidate.values[placeOfField(AlignmentField::FovYDEG)];
            }
        }
        return best;
    }

    // A lens that pulls the picture's edge together pulls the residuals there together, too: they
    // count as they lie in the picture that was clicked on.
    double takenLoss(const FitProblem &problem, const Lens &lens) const
    {
        const LensMapping mapping = *LensMapping::of(lens);
        const Eigen::VectorXd residuals = distances(problem);
        double loss = 0.0;
        for (std::size_t i = 0; i < problem.clicks.size(); ++i) {
            const double residual = residuals[static_cast<Eigen::Index>(i)] *
                                    takenPerShown(mapping, problem.clicks[i].pixel);
            loss += lossOfResidual(residual);
        }
        return loss;
    }

    double lossOfResidual(double residualPX) const
    {
        const double size = std::abs(residualPX);
        return m_loss == FitLoss::Squares || size <= hubersBendPX
                   ? size * size
                   : hubersBendPX * (2.0 * size - hubersBendPX);
    }

    static double takenPerShown(const LensMapping &mapping, const QPointF &shown)
    {
        const auto taken = [&](double x, double y) {
            return mapping.toTaken(shown + QPointF(x, y)).value_or(shown);
        };
        const QPointF byX = taken(0.5, 0) - taken(-0.5, 0);
        const QPointF byY = taken(0, 0.5) - taken(0, -0.5);
        return std::sqrt(std::abs(byX.x() * byY.y() - byX.y() * byY.x()));
    }

    // The coefficient counts in radii over the focal length, which was another one.
    void takeFocalLength(double shownFovYDEG, RadialEstimate &estimate) const
    {
        const double givenFovYDEG = LensMapping::of(estimate.lens)->fovYDEG();
        const double factor = std::tan(0.5 * givenFovYDEG * radiansPerDegree) /
                              std::tan(0.5 * shownFovYDEG * radiansPerDegree);
        estimate.k1 *= factor * factor;
        estimate.standardUncertainty *= factor * factor;
        estimate.lens.distortion[0] = estimate.k1;
        estimate.lens.cameraMatrix[0] *= factor;
        estimate.lens.cameraMatrix[4] *= factor;
    }

    Session m_session;
    FitLoss m_loss;
    double m_focalPX = 0.0;
    double m_k1PerBend = 0.0;
};

int completeRings(const Session &session)
{
    return static_cast<int>(std::count_if(session.rings.begin(), session.rings.end(),
                                          [](const RingClicks &ring) { return isComplete(ring); }));
}

Result<RadialEstimate> estimateWith(FitLoss loss, const Session &session)
{
    const RadialSearch search(session, loss);
    if (search.degreesOfFreedom() < 1) {
        return problemWith(Text::tr("the joints need more clicks to tell the lens"));
    }
    const std::optional<double> k1 = search.best();
    if (!k1) {
        return problemWith(Text::tr("no lens with one coefficient fits the joints"));
    }
    const RadialEstimate estimate = search.estimate(*k1);
    if (!std::isfinite(estimate.standardUncertainty)) {
        return problemWith(Text::tr("the joints do not tell the lens"));
    }
    return estimate;
}

// Those that do not fit even with the lens; the last ones first.
void dropWrongClicks(const Lens &lens, Session &session)
{
    Session straight = session;
    if (takeLens(straight, lens)) {
        return;
    }
    const Result<AlignmentFit> fit = fitSession(straight);
    if (!fit) {
        return;
    }
    QVector<ClickIndex> wrong = fit->suspicious;
    std::sort(wrong.begin(), wrong.end(),
              [](const ClickIndex &a, const ClickIndex &b) { return a.point > b.point; });
    for (const ClickIndex &click : wrong) {
        auto &points = click.isLine ? session.lines[click.feature].points
                                    : session.rings[click.feature].points;
        points.remove(click.point);
    }
}

} // namespace

Result<RadialEstimate> estimateRadial(const Session &session)
{
    if (session.lens) {
        return problemWith(Text::tr("the picture has a lens already"));
    }
    if (completeRings(session) < smallestRadialRings) {
        return problemWith(Text::tr("expected %1 joints with three clicks or more, found %2")
                               .arg(smallestRadialRings)
                               .arg(completeRings(session)));
    }
    const Result<RadialEstimate> rough = estimateWith(FitLoss::Huber, session);
    if (!rough) {
        return rough;
    }
    Session cleaned = session;
    dropWrongClicks(rough->lens, cleaned);
    const Result<RadialEstimate> estimate = estimateWith(FitLoss::Squares, cleaned);
    if (!estimate) {
        return estimate;
    }
    const bool isKnown = std::abs(estimate->k1) >= smallestStandoff * estimate->standardUncertainty;
    if (!isKnown) {
        return problemWith(Text::tr("the joints do not tell the lens from a straight one: k1 is "
                                    "%1 with a standard uncertainty of %2")
                               .arg(estimate->k1, 0, 'g', 2)
                               .arg(estimate->standardUncertainty, 0, 'g', 2));
    }
    return estimate;
}

} // namespace Drevon::Zalento::Measuring
