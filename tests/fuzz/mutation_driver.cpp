// Stands in for libFuzzer, and is called as that is: PROGRAM -runs=COUNT FOLDER... Feeds one fuzz entry:
// every sample of the folders as it is, then mutations of them up to that count, the same ones in every run,
// so that a debugger finds a fault again.

#include "fuzz_entry.h"

#include <QDir>
#include <QFile>
#include <cstdio>
#include <random>

namespace {

void run(const QByteArray& input) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

QList<QByteArray> samplesIn(const QDir& folder) {
    QList<QByteArray> samples;
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly)) samples << file.readAll();
    }
    return samples;
}

/// The standard's distributions differ from library to library, its generators do not.
qsizetype below(qsizetype bound) {
    static std::mt19937 random{20040729};
    return static_cast<qsizetype>(random() % static_cast<std::size_t>(bound));
}

void change(QByteArray& input) {
    if (input.isEmpty()) return;
    // Half of all changes go where headers are: behind them few bytes decide anything.
    const qsizetype at = below(below(2) == 0 ? std::min<qsizetype>(input.size(), 70) : input.size());
    const char telling[] = {0, 1, 2, 3, 4, 8, 16, 24, 32, 0x7F, '\x80', '\xFE', '\xFF'};
    const qsizetype kind = below(5);
    if (kind == 0) input[at] = static_cast<char>(below(256));
    if (kind == 1) input[at] = telling[below(sizeof telling)];
    if (kind == 2) input[at] = static_cast<char>(input[at] ^ (1 << below(8)));
    if (kind == 3) input.truncate(at);
    if (kind == 4) input.insert(at, input.mid(at, below(9)));
}

} // namespace

int main(int count, char** arguments) {
    QList<QByteArray> samples;
    int runs = 0;
    for (int i = 1; i < count; ++i) {
        const QByteArray word = arguments[i];
        if (word.startsWith("-runs="))
            runs = word.mid(6).toInt();
        else if (!word.startsWith('-'))
            samples << samplesIn(QDir(QString::fromLocal8Bit(word)));
    }
    if (samples.isEmpty()) return 2; // nothing fed would look like nothing found
    for (const QByteArray& sample : samples)
        run(sample);
    for (qsizetype left = runs - samples.size(); left > 0; --left) {
        QByteArray input = samples[below(samples.size())];
        for (qsizetype changes = 1 + below(4); changes > 0; --changes)
            change(input);
        run(input);
    }
    std::printf("%lld samples and their mutations, %d runs, no fault\n",
                static_cast<long long>(samples.size()), runs);
}
