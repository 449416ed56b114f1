// Runs a fuzzer's checks over its corpus and over inputs that are made from the corpus by small
// changes, the same ones in every run.
#include "FuzzInput.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr unsigned seed = 20;
constexpr std::size_t largestInput = 4096;

std::vector<QByteArray> readCorpus()
{
    std::vector<QByteArray> corpus;
    const QDir folder(QStringLiteral(ZALENTO_FUZZ_CORPUS));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            corpus.push_back(file.readAll());
        }
    }
    return corpus;
}

class Mutator
{
public:
    explicit Mutator(const std::vector<QByteArray> &corpus)
        : m_corpus(corpus)
    {}

    QByteArray next()
    {
        QByteArray input = m_corpus[below(m_corpus.size())];
        for (std::size_t changes = 1 + below(8); changes > 0; --changes) {
            change(input);
        }
        return input.left(largestInput);
    }

private:
    std::size_t below(std::size_t count)
    {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
    }

    void change(QByteArray &input)
    {
        const int at = static_cast<int>(below(static_cast<std::size_t>(input.size()) + 1));
        const auto byte = static_cast<char>(below(256));
        const QByteArray &other = m_corpus[below(m_corpus.size())];
        switch (below(5)) {
        case 0:
            input.insert(at, byte);
            break;
        case 1:
            input.remove(at, 1 + static_cast<int>(below(8)));
            break;
        case 2:
            input.insert(at, other.mid(static_cast<int>(below(64)), static_cast<int>(below(64))));
            break;
        default:
            input.replace(at, 1, &byte, 1);
        }
    }

    const std::vector<QByteArray> &m_corpus;
    std::mt19937 m_random{seed};
};

bool holds(const QByteArray &input, const char *kind, std::size_t number)
{
    try {
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                               static_cast<std::size_t>(input.size()));
        return true;
    } catch (const std::exception &e) {
        std::fprintf(stderr, "%s input %zu: %s\n%s\n", kind, number, e.what(),
                     input.toHex().constData());
        return false;
    }
}

} // namespace

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    const std::vector<QByteArray> corpus = readCorpus();
    if (corpus.empty()) {
        std::fprintf(stderr, "no corpus in %s\n", ZALENTO_FUZZ_CORPUS);
        return 1;
    }
    bool allHold = true;
    for (std::size_t i = 0; i < corpus.size(); ++i) {
        allHold &= holds(corpus[i], "corpus", i);
    }
    Mutator mutator(corpus);
    for (std::size_t i = 0; i < ZALENTO_FUZZ_GENERATED; ++i) {
        allHold &= holds(mutator.next(), "generated", i);
    }
    return allHold ? 0 : 1;
}
