// The camera calibration text, for any diameter.
#include "FuzzInput.h"
#include "zalento/pipes/Pipe.h"

#include <locale.h>

using namespace Drevon::Zalento;

namespace {

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (a != a && b != b);
}

void read(Pipe &pipe, double diameterMM, const std::string &text)
{
    pipe.setCameraCrackIni(text);
    pipe.diameterMM = diameterMM;
    pipe.setDiameterM(diameterMM * 0.001);
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const double diameterMM = input.takeDouble();
    const std::string text = input.takeRest();
    Pipe pipe;
    read(pipe, diameterMM, text);
    FUZZ_VERIFY(pipe.cameraCrackIni == text);
    FUZZ_VERIFY(pipe.laserPresent == (text.find("LASER") != std::string::npos));
    FUZZ_VERIFY(pipe.laserCalibrated || pipe.laserScale == 0.0);

    // A program runs under its user's locale. Where the machine has one, one with a decimal comma
    // reads the same.
    static const locale_t comma = newlocale(LC_ALL_MASK, "de_DE.UTF-8", nullptr);
    const locale_t before = uselocale(comma);
    Pipe other;
    read(other, diameterMM, text);
    uselocale(before);
    FUZZ_VERIFY(sameBits(pipe.laserScale, other.laserScale));
    FUZZ_VERIFY(sameBits(pipe.laserDistance, other.laserDistance));
    FUZZ_VERIFY(pipe.laserCalibrated == other.laserCalibrated);

    // What was read spoils nothing that is read later.
    read(pipe, 200, "150;1;1\n300;1;4\n");
    FUZZ_VERIFY(pipe.laserCalibrated && pipe.laserScale == 2.0);
    read(pipe, 300, "LASER;;;50");
    FUZZ_VERIFY(!pipe.laserCalibrated && pipe.laserDistance == 50.0);
    return 0;
}
