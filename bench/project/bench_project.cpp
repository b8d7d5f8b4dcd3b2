#include "BareProject.h"
#include "project/FrameFiles.h"
#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"
#include "SampleProject.h"

#include <benchmark/benchmark.h>
#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

/// Made once for each size and kept until the program ends.
const SampleProject &sampleOf(benchmark::State &state)
{
    static std::map<int64_t, std::unique_ptr<SampleProject>> samples;
    std::unique_ptr<SampleProject> &sample = samples[state.range(0)];
    if (!sample)
        sample = std::make_unique<SampleProject>(static_cast<int>(state.range(0)));
    return *sample;
}

void openBare(benchmark::State &state)
{
    const SampleProject &sample = sampleOf(state);
    for (auto _ : state) {
        if (bare::open(sample.tree().projPath, sample.tree()) != 2 * state.range(0))
            state.SkipWithError("files are missing");
    }
}

void openProject(benchmark::State &state)
{
    const SampleProject &sample = sampleOf(state);
    for (auto _ : state) {
        const ProjectReadResult result = ProjectReader::readFile(sample.tree().projPath);
        for (const ProjectFrame &frame : result.document.frames) {
            const CheckedFrame checked = FrameFiles::check(frame, sample.tree());
            if (checked.capFullMissing)
                state.SkipWithError("files are missing");
            benchmark::DoNotOptimize(checked.toMap());
        }
    }
}

void saveBare(benchmark::State &state)
{
    const SampleProject &sample = sampleOf(state);
    for (auto _ : state) {
        if (!bare::save(sample.otherPath(), sample.document().frames))
            state.SkipWithError("cannot save");
    }
}

void saveProject(benchmark::State &state)
{
    const SampleProject &sample = sampleOf(state);
    for (auto _ : state) {
        if (!ProjectWriter::save(sample.otherPath(), sample.document()).ok)
            state.SkipWithError("cannot save");
    }
}

constexpr int fewestFrames = 100;
constexpr int mostFrames = 100'000;

#define MORVANE_SIZES \
    ->RangeMultiplier(10)->Range(fewestFrames, mostFrames)->UseRealTime()->Unit(benchmark::kMillisecond)
BENCHMARK(openBare) MORVANE_SIZES;
BENCHMARK(openProject) MORVANE_SIZES;
BENCHMARK(saveBare) MORVANE_SIZES;
BENCHMARK(saveProject) MORVANE_SIZES;

/// Shows the runs as usual, and at the end how the program stands to the bare stream of the same size.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                m_times[run.run_name.function_name][run.run_name.args].push_back(run.GetAdjustedRealTime());
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void Finalize() override
    {
        std::printf("\n%-12s %10s %10s %12s\n", "", "frames", "ratio", "at most");
        printRatios("open", "openProject", "openBare", 2.0);
        printRatios("save", "saveProject", "saveBare", 1.5);
    }

private:
    static double median(std::vector<double> times)
    {
        std::sort(times.begin(), times.end());
        return times[times.size() / 2];
    }

    void printRatios(const char *label, const std::string &ours, const std::string &bareOnes, double most)
    {
        for (int frames = fewestFrames; frames <= mostFrames; frames *= 10) {
            const std::string size = std::to_string(frames);
            const std::vector<double> &own = m_times[ours][size];
            const std::vector<double> &other = m_times[bareOnes][size];
            if (!own.empty() && !other.empty())
                std::printf("%-12s %10d %10.2f %12.1f\n", label, frames, median(own) / median(other), most);
        }
    }

    std::map<std::string, std::map<std::string, std::vector<double>>> m_times;
};

} // namespace

// Runs of the pairs take turns, so that a busy machine slows both alike.
int main(int argc, char **argv)
{
    std::vector<std::string> arguments{argv[0], "--benchmark_repetitions=5",
                                       "--benchmark_enable_random_interleaving=true",
                                       "--benchmark_min_time=0.1"};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    std::vector<char *> pointers;
    for (std::string &argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
