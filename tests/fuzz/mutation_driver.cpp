// Feeds one fuzz entry: every sample of a folder as it is, then a number of mutations of them, the same ones
// in every run. Usage: PROGRAM FOLDER COUNT. A fault ends the program; the input is then in "fault.bin".

#include <QDir>
#include <QFile>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <random>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

QByteArray current;

/// Keeps the input that brought the fault. Only calls that a signal handler may make.
void keepInput(int signal) {
    const int file = open("fault.bin", O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (file >= 0 && write(file, current.constData(), static_cast<std::size_t>(current.size())) < 0) _exit(2);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void run(const QByteArray& input) {
    current = input;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

QList<QByteArray> samplesIn(const QString& folder) {
    QList<QByteArray> samples;
    const QDir directory(folder);
    for (const QString& name : directory.entryList(QDir::Files, QDir::Name)) {
        QFile file(directory.filePath(name));
        if (file.open(QIODevice::ReadOnly)) samples << file.readAll();
    }
    return samples;
}

/// The standard's distributions differ from library to library, its generators do not.
class Mutator {
public:
    QByteArray mutated(QByteArray input) {
        for (std::size_t changes = 1 + below(4); changes > 0; --changes)
            change(input);
        return input;
    }
    std::size_t below(std::size_t bound) { return random_() % bound; }

private:
    void change(QByteArray& input) {
        if (input.isEmpty()) return;
        // Half of all changes go where headers are: behind them few bytes decide anything.
        const auto size = static_cast<std::size_t>(input.size());
        const auto at = static_cast<qsizetype>(below(below(2) == 0 ? std::min<std::size_t>(size, 70) : size));
        const char telling[] = {0, 1, 2, 3, 4, 8, 16, 24, 32, 0x7F, '\x80', '\xFE', '\xFF'};
        switch (below(5)) {
        case 0:
            input[at] = static_cast<char>(below(256));
            break;
        case 1:
            input[at] = telling[below(sizeof telling)];
            break;
        case 2:
            input[at] = static_cast<char>(input[at] ^ (1 << below(8)));
            break;
        case 3:
            input.truncate(at);
            break;
        default:
            input.insert(at, input.mid(at, static_cast<qsizetype>(below(9))));
        }
    }

    std::mt19937 random_{20040729};
};

} // namespace

int main(int count, char** arguments) {
    if (count != 3) return 2;
    for (const int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS})
        std::signal(signal, keepInput);
    const QList<QByteArray> samples = samplesIn(QString::fromLocal8Bit(arguments[1]));
    if (samples.isEmpty()) return 2; // nothing fed would look like nothing found
    for (const QByteArray& sample : samples)
        run(sample);
    Mutator mutator;
    const int mutations = QByteArray(arguments[2]).toInt();
    for (int i = 0; i < mutations; ++i)
        run(mutator.mutated(
            samples[static_cast<qsizetype>(mutator.below(static_cast<std::size_t>(samples.size())))]));
    std::printf("%lld samples and %d mutations, no fault\n", static_cast<long long>(samples.size()),
                mutations);
}
