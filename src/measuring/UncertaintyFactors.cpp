#include "measuring/UncertaintyFactors.h"

#include "measuring/Editing.h"
#include "measuring/FitCamera.h"
#include "measuring/MatchedCurve.h"
#include "measuring/StandardUncertainties.h"

#include "zalento/geometry/Cylinder.h"

#include <Eigen/Eigenvalues>
#include <Eigen/LU>

#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

// Standard deviations of rectangles, JCGM 100 4.3.7: the width over the root of 12.
const double rectangle = 1.0 / std::sqrt(12.0);
constexpr double bendStepDEG = 5.0;

// The step of a difference quotient in the units of the alignment.
constexpr double step = 1e-3;

constexpr auto fieldCount = static_cast<Eigen::Index>(alignmentFieldCount);
constexpr auto fov = static_cast<Eigen::Index>(AlignmentField::FovYDEG);

using Fields = Eigen::Matrix<double, fieldCount, 1>;
using FieldMatrix = Eigen::Matrix<double, fieldCount, fieldCount>;

FieldMatrix matrixOf(const std::array<AlignmentNumbers, alignmentFieldCount> &rows)
{
    FieldMatrix matrix;
    for (Eigen::Index i = 0; i < fieldCount; ++i) {
        for (Eigen::Index j = 0; j < fieldCount; ++j) {
            matrix(i, j) = rows[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
        }
    }
    return matrix;
}

Fields vectorOf(const AlignmentNumbers &numbers)
{
    return Eigen::Map<const Fields>(numbers.data());
}

/**
 * The alignment as the operator made it: some fields fitted to clicks, the others by eye. By eye
 * the mouth's ring comes to lie on the joint, with its middle and its size, and the far ring's
 * middle on where the pipe leads.
 */
class AlignmentErrors
{
public:
    AlignmentErrors(const Session &session, const std::optional<AlignmentFit> &fit,
                    const Eigen::VectorXd &inputs)
        : m_picture(session.picture.size)
        , m_fields(inputs.head(fieldCount))
        , m_response(FieldMatrix::Zero())
    {
        std::array<bool, alignmentFieldCount> isFitted{};
        if (fit) {
            m_response = matrixOf(fit->response);
            m_covariance = matrixOf(fit->covariance);
            m_diameterResponse = vectorOf(fit->diameterResponse);
            for (const AlignmentField field : fit->fitted) {
                isFitted[static_cast<std::size_t>(field)] = true;
            }
        }
        m_isFovFitted = isFitted[static_cast<std::size_t>(fov)];
        // The rows of features() that tell a field apart have the field's place.
        for (Eigen::Index i = 0; i < fov; ++i) {
            if (!isFitted[static_cast<std::size_t>(i)]) {
                m_byEye.push_back(i);
            }
        }
    }

    bool isFovFitted() const { return m_isFovFitted; }

    /** Shifts of the fields by independent errors of the fit, one standard deviation each. */
    std::vector<Fields> ofFit() const
    {
        const Eigen::SelfAdjointEigenSolver<FieldMatrix> solver(m_covariance);
        std::vector<Fields> shifts;
        for (Eigen::Index i = 0; i < fieldCount; ++i) {
            const double variance = solver.eigenvalues()[i];
            if (variance > 0.0) {
                shifts.push_back(solver.eigenvectors().col(i) * std::sqrt(variance));
            }
        }
        return shifts;
    }

    /** The same by errors of the eye. */
    std::vector<Fields> ofEye(double px) const
    {
        std::vector<Fields> shifts;
        for (std::size_t i = 0; i < m_byEye.size(); ++i) {
            const Eigen::VectorXd seen = Eigen::VectorXd::Unit(eyeCount(), asIndex(i)) * px;
            shifts.push_back(followingEye() * featureSlopes().lu().solve(seen));
        }
        return shifts;
    }

    /** What an error of the field of view of 1 degree does: the clicks and what the eye sees of the
        rings stay where they are. */
    Fields ofFov() const
    {
        Fields shift = Fields::Unit(fov) + m_response.col(fov);
        if (eyeCount() > 0) {
            const Eigen::VectorXd moved =
                pick(features(m_fields + shift * step) - features(m_fields - shift * step)) /
                (2 * step);
            shift -= followingEye() * featureSlopes().lu().solve(moved);
        }
        return shift;
    }

    /** What an error of the diameter of 1 mm does, where distances along the pipe were given. */
    Fields ofDiameter() const { return m_diameterResponse; }

private:
    static Eigen::Index asIndex(std::size_t i) { return static_cast<Eigen::Index>(i); }
    Eigen::Index eyeCount() const { return asIndex(m_byEye.size()); }

    // What is seen of the rings, in pixels: the mouth's middle, the far ring's, the mouth's size.
    // Each stands where the field stands that moves it first.
    Fields features(const Fields &fields) const
    {
        AlignmentNumbers numbers;
        Eigen::Map<Fields>(numbers.data()) = fields;
        const FitCamera<double> camera(numbers, m_picture);
        const QPointF left = camera.pixelOf({0.5, 0, 0});
        const QPointF right = camera.pixelOf({-0.5, 0, 0});
        const QPointF mouth = camera.pixelOf({0, 0, 0});
        const QPointF far = camera.pixelOf({0, 0, -Cylinder::lengthInDiameters});
        Fields seen = Fields::Zero();
        seen << mouth.x(), mouth.y(), far.x(), far.y(),
            std::hypot(right.x() - left.x(), right.y() - left.y()) / 2, 0.0;
        return seen;
    }

    Eigen::VectorXd pick(const Fields &seen) const
    {
        Eigen::VectorXd picked(eyeCount());
        for (std::size_t i = 0; i < m_byEye.size(); ++i) {
            picked[asIndex(i)] = seen[m_byEye[i]];
        }
        return picked;
    }

    // How all fields move with those that are aligned by eye.
    Eigen::MatrixXd followingEye() const
    {
        Eigen::MatrixXd follow(fieldCount, eyeCount());
        for (std::size_t i = 0; i < m_byEye.size(); ++i) {
            follow.col(asIndex(i)) = Fields::Unit(m_byEye[i]) + m_response.col(m_byEye[i]);
        }
        return follow;
    }

    // How the features move with the fields that are aligned by eye.
    Eigen::MatrixXd featureSlopes() const
    {
        const Eigen::MatrixXd follow = followingEye();
        Eigen::MatrixXd slopes(eyeCount(), eyeCount());
        for (Eigen::Index i = 0; i < eyeCount(); ++i) {
            const Fields shift = follow.col(i) * step;
            slopes.col(i) =
                pick(features(m_fields + shift) - features(m_fields - shift)) / (2 * step);
        }
        return slopes;
    }

    QSize m_picture;
    Fields m_fields;
    FieldMatrix m_response;
    FieldMatrix m_covariance = FieldMatrix::Zero();
    Fields m_diameterResponse = Fields::Zero();
    std::vector<Eigen::Index> m_byEye;
    bool m_isFovFitted = false;
};

class FactorList
{
public:
    explicit FactorList(Eigen::Index size)
        : m_size(size)
    {}

    void add(UncertaintySource source, Distribution distribution, const Eigen::VectorXd &shift)
    {
        if (!shift.isZero(0.0)) {
            factors.push_back({source, distribution, shift.sparseView(0.0, 0.0)});
        }
    }

    void addOne(UncertaintySource source, Distribution distribution, Eigen::Index input,
                double deviation)
    {
        add(source, distribution, Eigen::VectorXd::Unit(m_size, input) * deviation);
    }

    Eigen::VectorXd ofFields(const Fields &fields) const
    {
        Eigen::VectorXd shift = Eigen::VectorXd::Zero(m_size);
        shift.head(fieldCount) = fields;
        return shift;
    }

    std::vector<UncertaintyFactor> factors;

private:
    Eigen::Index m_size;
};

void addClicks(const MeasuringModel &model, const InputUncertainties &known, FactorList &list)
{
    for (Eigen::Index i = ModelInput::firstClick; i < model.inputs().size(); ++i) {
        list.addOne(UncertaintySource::Clicks, Distribution::Normal, i, known.clickPX);
        list.addOne(UncertaintySource::Pixels, Distribution::Rectangular, i, rectangle);
    }
}

// Spots of the laser are clicked like points: the error along the line between two of them.
double spotsPart(const Session &session, const InputUncertainties &known)
{
    const QPointF between = session.laserSpots[0] - session.laserSpots[1];
    return std::sqrt(2.0) * std::hypot(known.clickPX, rectangle) /
           std::hypot(between.x(), between.y());
}

void addScale(const Session &session, const MeasuringModel &model, const InputUncertainties &known,
              FactorList &list)
{
    const double scale = model.inputs()[ModelInput::mmPerPixel];
    if (session.laserSpots.size() != 2) {
        list.addOne(UncertaintySource::Scale, Distribution::Normal, ModelInput::mmPerPixel,
                    scale * known.scalePart);
        return;
    }
    list.addOne(UncertaintySource::Laser, Distribution::Normal, ModelInput::mmPerPixel,
                scale * std::hypot(known.laserPart, spotsPart(session, known)));
}

void addAlignment(const AlignmentErrors &errors, const InputUncertainties &known, FactorList &list)
{
    for (const Fields &shift : errors.ofFit()) {
        list.add(UncertaintySource::Alignment, Distribution::Normal, list.ofFields(shift));
    }
    for (const Fields &shift : errors.ofEye(known.alignmentPX)) {
        list.add(UncertaintySource::Alignment, Distribution::Normal, list.ofFields(shift));
    }
    if (!errors.isFovFitted()) {
        list.add(UncertaintySource::FieldOfView, Distribution::Normal,
                 list.ofFields(errors.ofFov() * known.fovDEG));
    }
}

void addDiameter(const AlignmentErrors &errors, const InputUncertainties &known, FactorList &list)
{
    Eigen::VectorXd shift = list.ofFields(errors.ofDiameter() * known.diameterMM);
    shift[ModelInput::diameterMM] = known.diameterMM;
    list.add(UncertaintySource::Diameter, Distribution::Normal, shift);
}

// What is matched by eye follows the errors of the alignment, and has its own.
void addSetting(const Session &session, const MeasuringModel &model,
                const InputUncertainties &known, FactorList &list)
{
    const MatchedCurve curve(session);
    if (!curve.isSet()) {
        return;
    }
    for (UncertaintyFactor &factor : list.factors) {
        factor.shift.coeffRef(curve.setting()) +=
            curve.response(model.inputs(), Eigen::VectorXd(factor.shift));
    }
    list.addOne(UncertaintySource::Setting, Distribution::Normal, curve.setting(),
                curve.settingFor(model.inputs(), known.alignmentPX));
    if (session.kind == Kind::BendAngle) {
        list.addOne(UncertaintySource::Setting, Distribution::Rectangular, curve.setting(),
                    bendStepDEG * rectangle);
    }
}

} // namespace

std::vector<UncertaintyFactor> uncertaintyFactors(const Session &session,
                                                  const std::optional<AlignmentFit> &fit,
                                                  const MeasuringModel &model)
{
    const InputUncertainties known = inputUncertainties(session);
    const KindInfo &info = infoOf(session.kind);
    FactorList list(model.inputs().size());
    if (info.has(Uses::Model)) {
        const AlignmentErrors errors(session, fit, model.inputs());
        addAlignment(errors, known, list);
        addDiameter(errors, known, list);
    }
    if (info.has(Uses::Percentage)) {
        addSetting(session, model, known, list);
    }
    if (info.has(Uses::Scale)) {
        addScale(session, model, known, list);
    }
    addClicks(model, known, list);
    return list.factors;
}

} // namespace Drevon::Zalento::Measuring
