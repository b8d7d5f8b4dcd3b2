#pragma once

#include <unistd.h>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <QElapsedTimer>
#include <QFile>
#include <vector>

/// How the benchmarks measure, and how they tell bench/run what they found. Which figures there are and what
/// limits they have stands in bench/figures alone.
namespace figures {

/// Whether the short form is wanted: good enough to see that all works, not for figures.
inline bool quick(int argc, char **argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char *text) { return !std::strcmp(text, "--quick"); });
}

/// What the program logs would be most of what is seen, and part of what is measured.
inline void dropLog()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    });
}

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

inline double elapsedMs(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

template <typename Work>
double timed(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return elapsedMs(timer);
}

/// What this program takes, and what stands beside it.
struct Compared
{
    double ours = 0;
    double other = 0;
};

/// The medians of two calls that return their milliseconds. They take turns, so that whatever else the
/// machine does slows both alike.
template <typename Ours, typename Other>
Compared inTurn(int runs, Ours ours, Other other)
{
    std::vector<double> own;
    std::vector<double> others;
    for (int run = 0; run < runs; ++run) {
        others.push_back(other());
        own.push_back(ours());
    }
    return {median(own), median(others)};
}

/// Megabytes of this process in memory.
inline double residentMb()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const double pageMb = double(sysconf(_SC_PAGESIZE)) / 1048576;
    return file.readAll().split(' ').value(1).toDouble() * pageMb;
}

inline void print(const char *name, double value)
{
    std::printf("%s\t%.6g\n", name, value);
    std::fflush(stdout);
}

inline void print(const char *name, const Compared &compared)
{
    std::printf("%s\t%.6g\t%.6g\n", name, compared.ours, compared.other);
    std::fflush(stdout);
}

} // namespace figures
