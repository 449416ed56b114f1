#include "support/TestCase.h"
#include "support/Tolerances.h"

#include <cmath>
#include <random>
#include <stdexcept>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

const double radians = 0.017453292519943295; // in a degree

class RandomValues
{
public:
    double number() { return m_number(m_engine); }
    Vec3 vector() { return {number(), number(), number()}; }
    Mat4 matrix()
    {
        Mat4 result;
        for (double &element : result.m)
            element = number();
        return result;
    }

private:
    std::mt19937_64 m_engine{20240229};
    std::uniform_real_distribution<double> m_number{-3, 3};
};

const Mat4 counted(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16);

Mat4 builtFrom(Mat4 m, void (*build)(Mat4 &))
{
    build(m);
    return m;
}

} // namespace

Q_DECLARE_METATYPE(Drevon::Zalento::Mat4)

class TestMat4 : public TestCase
{
    Q_OBJECT

private slots:
    void inverseTimesMatrixIsIdentity()
    {
        // Some random matrices are badly conditioned; their inverses carry as much more rounding.
        const Tolerance conditioned{1e-9, ""};
        RandomValues random;
        for (int n = 0; n < 1000; ++n) {
            const Mat4 m = random.matrix();
            Mat4 product(m);
            product.multiply(m.inverse());
            COMPARE_NEAR(product, Mat4(), conditioned);
        }
    }

    void builders_data()
    {
        QTest::addColumn<Mat4>("built");
        QTest::addColumn<Mat4>("expected");
        const auto row = [](const char *name, void (*build)(Mat4 &), const Mat4 &expected) {
            QTest::newRow(name) << builtFrom(counted, build) << expected;
        };
        const double c = std::cos(40 * radians);
        const double s = std::sin(40 * radians);
        const Mat4 aboutZ(c, -s, 0, 0, s, c, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
        const Mat4 viewport(100.5, 0, 0, 110.5, 0, -50, 0, 70, 0, 0, 0.5, 0.5, 0, 0, 0, 1);
        Mat4 turned(counted);
        turned.multiply(aboutZ);
        // clang-format off
        row("translation", [](Mat4 &m) { m.translation(Vec3(7, 8, 9), false); },
            {1, 0, 0, 7, 0, 1, 0, 8, 0, 0, 1, 9, 0, 0, 0, 1});
        row("translation, others kept", [](Mat4 &m) { m.translation(-1, -2, -3, true); },
            {1, 2, 3, -1, 5, 6, 7, -2, 9, 10, 11, -3, 13, 14, 15, 16});
        row("scaling", [](Mat4 &m) { m.scaling(Vec3(2, 3, 4), false); },
            {2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4, 0, 0, 0, 0, 1});
        row("scaling, translation kept", [](Mat4 &m) { m.scaling(2, 3, 4, true); },
            {2, 0, 0, 4, 0, 3, 0, 8, 0, 0, 4, 12, 0, 0, 0, 1});
        row("rotation about x", [](Mat4 &m) { m.rotation(40, 1, 0, 0, false); },
            {1, 0, 0, 0, 0, c, -s, 0, 0, s, c, 0, 0, 0, 0, 1});
        row("rotation about y", [](Mat4 &m) { m.rotation(40, Vec3::YAxis, false); },
            {c, 0, s, 0, 0, 1, 0, 0, -s, 0, c, 0, 0, 0, 0, 1});
        row("rotation about z, translation kept", [](Mat4 &m) { m.rotation(40, 0, 0, 1, true); },
            {c, -s, 0, 4, s, c, 0, 8, 0, 0, 1, 12, 0, 0, 0, 1});
        row("rotation about no axis", [](Mat4 &m) { m.rotation(40, 0, 0, 0, false); },
            {c, 0, 0, 0, 0, c, 0, 0, 0, 0, c, 0, 0, 0, 0, 1});
        row("frustum", [](Mat4 &m) { m.setFrustum(-1, 3, -2, 6, 0.5, 2.5); },
            {0.25, 0, 0.5, 0, 0, 0.125, 0.5, 0, 0, 0, -1.5, -1.25, 0, 0, -1, 0});
        row("viewport", [](Mat4 &m) { m.setViewPort(QRectF(10, 20, 201, 100)); }, viewport);
        row("integer viewport", [](Mat4 &m) { m.setViewPort(QRect(10, 20, 201, 100)); }, viewport);
        row("translate", [](Mat4 &m) { m.translate(Vec3(1, 0, 2)); },
            {1, 2, 3, 11, 5, 6, 7, 27, 9, 10, 11, 43, 13, 14, 15, 59});
        row("rotate", [](Mat4 &m) { m.rotate(40, Vec3::ZAxis); }, turned);
        row("scale", [](Mat4 &m) { m.scale(Vec3(2, 3, 4)); },
            {2, 6, 12, 4, 10, 18, 28, 8, 18, 30, 44, 12, 26, 42, 60, 16});
        // clang-format on
    }

    void builders()
    {
        QFETCH(Mat4, built);
        QFETCH(Mat4, expected);
        COMPARE_NEAR(built, expected, Tolerance({0, ""})); // the sign of a 0 is free
    }

    void rotationAboutAnyAxis()
    {
        const std::pair<Vec3, bool> cases[] = {
            {{1, -2, 3}, true},         {{0.1, 0.2, -0.2}, true},
            {{0, 0, 1.0000501}, true}, // squared length just above and below 1.0001
            {{0, 0, 1.0000498}, false}, {{0, 0.99994, 0}, true}, // just below and above 0.9999
            {{0, 0.99996, 0}, false},   {{-1, 0, 0}, false},
        };
        for (auto [axis, isNormalised] : cases) {
            Mat4 m;
            m.rotation(-75, axis, false);
            if (isNormalised)
                axis = axis * (1 / std::sqrt(axis.x * axis.x + axis.y * axis.y + axis.z * axis.z));
            const auto [x, y, z] = axis;
            const double c = std::cos(-75 * radians);
            const double s = std::sin(-75 * radians);
            COMPARE_EXACT(m, Mat4(x * x + (1 - x * x) * c, x * y * (1 - c) - z * s,
                                  x * z * (1 - c) + y * s, 0, x * y * (1 - c) + z * s,
                                  y * y + (1 - y * y) * c, y * z * (1 - c) - x * s, 0,
                                  x * z * (1 - c) - y * s, y * z * (1 - c) + x * s,
                                  z * z + (1 - z * z) * c, 0, 0, 0, 0, 1));
        }
    }

    void lookAtAndBack()
    {
        Mat4 m(counted);
        m.lookAt(0, 0, 1, 0, 0, 1000000, 0, -1, 0);
        COMPARE_NEAR(m, Mat4(1, 0, 0, 0, 0, -1, 0, 0, 0, 0, -1, 1, 0, 0, 0, 1), roundingTolerance);
        m.lookAt(Vec3(1, 2, 3), Vec3(-4, 0, 7), Vec3(0, 2, 1));
        Vec3 eye;
        Vec3 direction;
        Vec3 up;
        m.getLookAt(eye, direction, up);
        COMPARE_NEAR(eye, Vec3(1, 2, 3), roundingTolerance);
        COMPARE_NEAR(direction, Vec3(-5, -2, 4) / std::sqrt(45.0), roundingTolerance);
        // (0, 2, 1) is perpendicular to the direction.
        COMPARE_NEAR(up, Vec3(0, 2, 1) / std::sqrt(5.0), roundingTolerance);
        Mat4 yUp;
        yUp.lookAt(Vec3(1, 2, 3), Vec3(-4, 0, 7), Vec3::YAxis);
        m.lookAt(Vec3(1, 2, 3), Vec3(-4, 0, 7), Vec3::Zero);
        COMPARE_NEAR(m, yUp, roundingTolerance);
    }

    void lookAtThrows()
    {
        const Vec3 eye(1, 2, 3);
        // The eye at the centre; up along the view.
        for (const auto &[center, up] :
             {std::pair(eye, Vec3::YAxis), std::pair(Vec3(1, 2, 9), Vec3(0, 0, -2))}) {
            Mat4 m(counted);
            try {
                m.lookAt(eye, center, up);
                QFAIL("no exception");
            } catch (const std::range_error &e) {
                QCOMPARE(e.what(), "Trying to normalize a vector with length of zero.");
            }
            COMPARE_EXACT(m, counted);
        }
    }
};

QTEST_APPLESS_MAIN(TestMat4)
#include "tst_mat4.moc"
