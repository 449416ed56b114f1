#include "measuring/RingSearch.h"

#include "measuring/Count.h"
#include "measuring/FitCamera.h"
#include "measuring/Text.h"

#include <Eigen/Cholesky>
#include <Eigen/LU>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <random>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr int samples = 240;

// Along a normal brightness is looked at in steps of this.
constexpr double stepPX = 0.5;
// The strongest edges of a normal, of both signs, that are candidates.
constexpr std::size_t mostCandidates = 5;
// An edge stands out of what lies around it by this factor over the normal's median gradient.
constexpr double outstanding = 3.0;

// A ring near the curve differs from it by a shift, a size and, when it is refined, a slant.
constexpr int coarseTerms = 3;
constexpr int fineTerms = 5;
using Terms = Eigen::Matrix<double, fineTerms, 1>;

constexpr int trials = 1500;
constexpr std::uint64_t seed = 1;
constexpr double coarseTolerancePX = 2.5;
constexpr double fineTolerancePX = 1.25;
constexpr int refinements = 8;

// What makes a ring convincing: this share of the visible normals have its edge, in sectors of
// which no two neighbours lie farther apart than a little less than half a turn, and no other ring
// gets more than this share of its votes.
constexpr double smallestShare = 0.4;
constexpr int sectors = 12;
constexpr int largestGap = 5; // sectors
constexpr double largestRival = 0.8;
// Two rings are different ones that lie farther apart than this, root mean square.
constexpr double differentPX = 5.0;

struct Candidate
{
    double at = 0.0;       ///< along the normal, in pixels
    double strength = 0.0; ///< light a pixel; positive when it is lighter outside
};

struct Normal
{
    RingCurve::Point point;
    double angle = 0.0;
    std::vector<Candidate> candidates;
};

Terms termsAt(double angle, int count)
{
    Terms terms = Terms::Zero();
    terms << std::cos(angle), std::sin(angle), 1.0, std::cos(2 * angle), std::sin(2 * angle);
    terms.tail(fineTerms - count).setZero();
    return terms;
}

std::vector<double> profileOf(const RingCurve::Point &point, const PictureEdges &edges,
                              double reachPX)
{
    const int steps = static_cast<int>(reachPX / stepPX);
    std::vector<double> profile;
    for (int i = -steps; i <= steps; ++i) {
        const QPointF place = point.place + point.normal * (i * stepPX);
        profile.push_back(
            edges.contains(place) ? QPointF::dotProduct(edges.gradient(place), point.normal) : 0.0);
    }
    return profile;
}

double medianSize(std::vector<double> numbers)
{
    for (double &number : numbers) {
        number = std::abs(number);
    }
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

// The top of the parabola through three values a step apart, in steps from the middle one.
double topOf(double before, double at, double after)
{
    const double curvature = before - 2 * at + after;
    return curvature != 0.0 ? std::clamp(0.5 * (before - after) / curvature, -0.5, 0.5) : 0.0;
}

// Where the profile is steepest, the strongest first.
std::vector<Candidate> candidatesOf(const std::vector<double> &profile, double threshold,
                                    double reachPX)
{
    std::vector<Candidate> found;
    const double middle = static_cast<double>(profile.size() / 2);
    for (std::size_t i = 1; i + 1 < profile.size(); ++i) {
        const double sign = profile[i] < 0 ? -1.0 : 1.0;
        const double here = sign * profile[i];
        const bool isTop =
            here > threshold && here >= sign * profile[i - 1] && here > sign * profile[i + 1];
        if (isTop) {
            const double top = topOf(sign * profile[i - 1], here, sign * profile[i + 1]);
            const double at = (static_cast<double>(i) + top - middle) * stepPX;
            if (std::abs(at) <= reachPX) {
                found.push_back({at, profile[i]});
            }
        }
    }
    std::sort(found.begin(), found.end(), [](const Candidate &a, const Candidate &b) {
        return std::abs(a.strength) > std::abs(b.strength);
    });
    found.resize(std::min(found.size(), mostCandidates));
    return found;
}

/** The normals of a ring that the picture shows, with their edges. */
std::vector<Normal> normalsOf(const RingCurve &curve, const PictureEdges &edges, double widePX,
                              double reachPX)
{
    std::vector<Normal> normals;
    for (const RingCurve::Point &point : curve.points()) {
        if (!edges.contains(point.place)) {
            continue;
        }
        const QPointF way = point.place - curve.middle();
        const std::vector<double> profile = profileOf(point, edges, widePX);
        normals.push_back({point, std::atan2(way.y(), way.x()),
                           candidatesOf(profile, outstanding * medianSize(profile), reachPX)});
    }
    return normals;
}

// The candidate of the sign that lies nearest to the ring, if one lies near enough.
const Candidate *nearest(const Normal &normal, const Terms &ring, double sign, double tolerancePX)
{
    const double at = ring.dot(termsAt(normal.angle, fineTerms));
    const Candidate *best = nullptr;
    for (const Candidate &candidate : normal.candidates) {
        const double off = std::abs(candidate.at - at);
        const bool isNearer = off <= tolerancePX && (!best || off < std::abs(best->at - at));
        if (candidate.strength * sign > 0.0 && isNearer) {
            best = &candidate;
        }
    }
    return best;
}

// Each normal votes by how strong its edge on the ring is among its own edges.
double votesFor(const std::vector<Normal> &normals, const Terms &ring, double sign)
{
    double votes = 0.0;
    for (const Normal &normal : normals) {
        if (const Candidate *edge = nearest(normal, ring, sign, coarseTolerancePX)) {
            votes += std::abs(edge->strength / normal.candidates.front().strength);
        }
    }
    return votes;
}

struct Vote
{
    Terms ring = Terms::Zero();
    double sign = 1.0;
    double votes = 0.0;
};

// The ring through one edge each of three normals that lie apart.
std::optional<Vote> ringThrough(const std::vector<Normal> &normals, std::mt19937_64 &random)
{
    Eigen::Matrix3d equations;
    Eigen::Vector3d offsets;
    double sign = 0.0;
    const std::size_t first = random() % normals.size();
    for (int i = 0; i < coarseTerms; ++i) {
        const std::size_t apart = normals.size() * static_cast<std::size_t>(i) / 3;
        const std::size_t jitter = random() % (normals.size() / 6 + 1);
        const Normal &normal = normals[(first + apart + jitter) % normals.size()];
        if (normal.candidates.empty()) {
            return std::nullopt;
        }
        const Candidate &edge = normal.candidates[random() % normal.candidates.size()];
        const double edgeSign = edge.strength < 0 ? -1.0 : 1.0;
        if (sign != 0.0 && edgeSign != sign) {
            return std::nullopt;
        }
        sign = edgeSign;
        equations.row(i) = termsAt(normal.angle, coarseTerms).head<coarseTerms>().transpose();
        offsets[i] = edge.at;
    }
    Vote vote;
    vote.sign = sign;
    vote.ring.head<coarseTerms>() = equations.partialPivLu().solve(offsets);
    return vote.ring.allFinite() ? std::optional<Vote>(vote) : std::nullopt;
}

// How far two rings lie apart, root mean square over all angles.
double apart(const Terms &a, const Terms &b)
{
    const Terms way = a - b;
    return std::sqrt(way[2] * way[2] + 0.5 * (way.squaredNorm() - way[2] * way[2]));
}

/** The ring with the most votes, and the votes of the best that is another one. */
struct Election
{
    Vote winner;
    double rival = 0.0;
};

Election elect(const std::vector<Normal> &normals, double reachPX)
{
    std::mt19937_64 random(seed);
    std::vector<Vote> votes;
    for (int i = 0; i < trials; ++i) {
        std::optional<Vote> vote = ringThrough(normals, random);
        if (vote && apart(vote->ring, Terms::Zero()) <= reachPX) {
            vote->votes = votesFor(normals, vote->ring, vote->sign);
            votes.push_back(*vote);
        }
    }
    Election election;
    for (const Vote &vote : votes) {
        if (vote.votes > election.winner.votes) {
            election.winner = vote;
        }
    }
    for (const Vote &vote : votes) {
        const bool isOther = apart(vote.ring, election.winner.ring) > differentPX;
        if (isOther && vote.votes > election.rival) {
            election.rival = vote.votes;
        }
    }
    return election;
}

// Least squares over the edges near the ring, again and again.
Terms refined(const std::vector<Normal> &normals, const Vote &vote)
{
    Terms ring = vote.ring;
    for (int i = 0; i < refinements; ++i) {
        Eigen::Matrix<double, fineTerms, fineTerms> squares =
            Eigen::Matrix<double, fineTerms, fineTerms>::Identity() * 1e-9;
        Terms sums = Terms::Zero();
        const double tolerance = i < refinements / 2 ? coarseTolerancePX : fineTolerancePX;
        for (const Normal &normal : normals) {
            if (const Candidate *edge = nearest(normal, ring, vote.sign, tolerance)) {
                const Terms terms = termsAt(normal.angle, fineTerms);
                squares += terms * terms.transpose();
                sums += terms * edge->at;
            }
        }
        ring = squares.ldlt().solve(sums);
    }
    return ring;
}

struct Found
{
    QVector<QPointF> points;
    int gap = 0; ///< the most sectors in a row without an edge
};

Found pointsOn(const std::vector<Normal> &normals, const Terms &ring, double sign)
{
    Found found;
    std::array<int, sectors> seen{};
    std::array<int, sectors> all{};
    for (const Normal &normal : normals) {
        const auto sector = static_cast<std::size_t>((normal.angle + pi) / twoPi * sectors) %
                            static_cast<std::size_t>(sectors);
        ++all[sector];
        if (const Candidate *edge = nearest(normal, ring, sign, fineTolerancePX)) {
            found.points += normal.point.place + normal.point.normal * edge->at;
            ++seen[sector];
        }
    }
    int gap = 0;
    for (std::size_t i = 0; i < 2 * seen.size(); ++i) { // around, and around again
        const std::size_t sector = i % seen.size();
        const bool hasEdge = seen[sector] > 0 && 3 * seen[sector] >= all[sector];
        gap = hasEdge ? 0 : gap + 1;
        found.gap = std::max(found.gap, gap);
    }
    return found;
}

Problem refusal(const QString &why)
{
    return {QStringLiteral("snap"), why};
}

} // namespace

RingCurve::RingCurve(const Alignment &alignment, double depth, const QSize &picture)
{
    constexpr double radius = 0.5;
    constexpr double turn = 1e-4;
    const FitCamera<double> camera(alignment.numbers(), picture);
    const auto at = [&](double angle) {
        return camera.pixelOf({radius * std::cos(angle), radius * std::sin(angle), -depth});
    };
    m_middle = camera.pixelOf({0.0, 0.0, -depth});
    for (int i = 0; i < samples; ++i) {
        const double angle = i * twoPi / samples;
        const QPointF place = at(angle);
        const QPointF along = at(angle + turn) - at(angle - turn);
        QPointF normal(along.y(), -along.x());
        normal /= std::hypot(normal.x(), normal.y());
        const bool isInward = QPointF::dotProduct(normal, place - m_middle) < 0;
        m_points.push_back({place, isInward ? -normal : normal});
    }
}

Result<QVector<QPointF>> findRing(const RingCurve &curve, const PictureEdges &edges, double widePX,
                                  double reachPX)
{
    const std::vector<Normal> normals = normalsOf(curve, edges, widePX, reachPX);
    if (static_cast<int>(normals.size()) < samples / 3) {
        return refusal(Text::tr("the picture shows too little of the ring"));
    }
    const Election election = elect(normals, reachPX);
    const auto count = static_cast<double>(normals.size());
    const Found found = pointsOn(normals, refined(normals, election.winner), election.winner.sign);
    if (countOf(found.points) < smallestShare * count || found.gap > largestGap) {
        return refusal(Text::tr("no edge runs along enough of the ring: found %1 % of it")
                           .arg(qRound(100 * countOf(found.points) / count)));
    }
    if (election.rival > largestRival * election.winner.votes) {
        return refusal(Text::tr("two edges fit the ring equally well"));
    }
    return found.points;
}

} // namespace Drevon::Zalento::Measuring
