#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string>

/** Ends the run of an input that breaks a promise of the library. */
#define FUZZ_VERIFY(condition)                                                                     \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            throw std::logic_error("does not hold: " #condition);                                  \
        }                                                                                          \
    } while (false)

/** Takes values off the front of a fuzzer's input; an input that has run out gives zeros. */
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t *data, std::size_t size)
        : m_data(data)
        , m_size(size)
    {}

    bool isEmpty() const { return m_size == 0; }

    /**
     * True for about one in @p count inputs, decided by all that is left of it: a fuzzer cannot
     * make such inputs the rule by keeping the byte that decides.
     */
    bool isOneIn(std::uint32_t count) const
    {
        std::uint32_t hash = 2166136261U; // FNV-1a
        for (std::size_t i = 0; i < m_size; ++i) {
            hash = (hash ^ m_data[i]) * 16777619U;
        }
        return (hash >> 8) % count == 0;
    }

    template <typename Integer>
    Integer take()
    {
        Integer value = 0;
        const std::size_t taken = m_size < sizeof value ? m_size : sizeof value;
        if (taken != 0) {
            std::memcpy(&value, m_data, taken);
        }
        m_data += taken;
        m_size -= taken;
        return value;
    }

    /** An integer in [0, @p count). */
    int choice(int count) { return take<std::uint8_t>() % count; }

    /** Any bits, a value at the border of something, or one that a user would set. */
    double takeDouble()
    {
        using Limits = std::numeric_limits<double>;
        static const double borders[] = {0.0,
                                         -0.0,
                                         Limits::quiet_NaN(),
                                         Limits::infinity(),
                                         -Limits::infinity(),
                                         Limits::max(),
                                         Limits::lowest(),
                                         Limits::min(),
                                         Limits::denorm_min(),
                                         1e300,
                                         1e-300,
                                         1e18,
                                         2147483647.0,
                                         -2147483649.0,
                                         4294967296.0,
                                         1e6,
                                         1.0,
                                         -1.0,
                                         30.0,
                                         50.0,
                                         90.0,
                                         100.0,
                                         150.0,
                                         180.0,
                                         360.0};
        constexpr int borderCount = sizeof borders / sizeof *borders;
        switch (choice(4)) {
        case 0:
            return borders[choice(borderCount)];
        case 1: {
            const auto bits = take<std::uint64_t>();
            double value = 0;
            std::memcpy(&value, &bits, sizeof value);
            return value;
        }
        default:
            return take<std::int16_t>() / 32.0; // up to 1024
        }
    }

    int takeInt()
    {
        switch (choice(4)) {
        case 0:
            return std::numeric_limits<int>::max() - choice(200);
        case 1:
            return std::numeric_limits<int>::min() + choice(200);
        case 2:
            return take<std::int16_t>();
        default:
            return choice(8) - 2;
        }
    }

    std::string takeRest()
    {
        const std::string rest(reinterpret_cast<const char *>(m_data), m_size);
        m_size = 0;
        return rest;
    }

private:
    const std::uint8_t *m_data;
    std::size_t m_size;
};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
