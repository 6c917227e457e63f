#include "geometry/CFastReader.h"
#include "geometry/CFastWriter.h"
#include "geometry/CGeometryBlockReader.h"
#include "geometry/CPointsProvider.h"
#include "geometry/CPolygonsProvider.h"
#include "geometry/CZELGeoReader.h"
#include "tests/support/CGeometrySection.h"
#include "tests/support/CStepReadStream.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <random>
#include <vector>

using namespace OvZel;

namespace {

constexpr std::int32_t kNumbers = 1'000'000;

const std::vector<double>& numbers()
{
    static const std::vector<double> values = [] {
        std::mt19937_64 random(1);
        std::uniform_real_distribution<double> range(-5000.0, 5000.0);
        std::vector<double> result(kNumbers);
        for (double& value : result)
            value = range(random);
        return result;
    }();
    return values;
}

std::string printed()
{
    CTextWriteStream stream;
    CFastWriter out(stream);
    for (const double value : numbers())
        out.writeDouble(value);
    out.flush();
    return stream.text;
}

/// Takes everything and keeps nothing.
class CNullStream : public OrvaneXML::XIXMLWriteStream {
public:
    std::uint32_t Write(const void* buffer, std::uint32_t size) override
    {
        benchmark::DoNotOptimize(buffer);
        return size;
    }
};

void writeNumbers(benchmark::State& state)
{
    for (auto _ : state) {
        CNullStream stream;
        CFastWriter out(stream);
        for (const double value : numbers())
            out.writeDouble(value);
        out.flush();
    }
    state.SetItemsProcessed(state.iterations() * kNumbers);
}
BENCHMARK(writeNumbers)->Unit(benchmark::kMillisecond);

void writeNumbersToChars(benchmark::State& state)
{
    std::vector<char> buffer(64 * 1024);
    for (auto _ : state) {
        char* out = buffer.data();
        for (const double value : numbers()) {
            if (buffer.data() + buffer.size() - out < 64)
                out = buffer.data();
            out = std::to_chars(out, out + 60, value, std::chars_format::fixed, 6).ptr;
            *out++ = ' ';
        }
        benchmark::DoNotOptimize(out);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kNumbers);
}
BENCHMARK(writeNumbersToChars)->Unit(benchmark::kMillisecond);

void readNumbers(benchmark::State& state)
{
    const std::string text = printed();
    for (auto _ : state) {
        CTestBlockHost host;
        CStepReadStream stream(text);
        OrvaneXML::CXMLBufferedReader buffered(&stream);
        CFastReader in(*CZelMgrRef::from(&host.blockMgrRef()), buffered);
        double sum = 0.0;
        for (std::int32_t i = 0; i < kNumbers; ++i)
            sum += in.readDouble();
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * kNumbers);
}
BENCHMARK(readNumbers)->Unit(benchmark::kMillisecond);

void readNumbersFromChars(benchmark::State& state)
{
    const std::string text = printed();
    for (auto _ : state) {
        const char* in = text.data();
        const char* end = in + text.size();
        double sum = 0.0;
        for (std::int32_t i = 0; i < kNumbers; ++i) {
            double value = 0.0;
            in = std::from_chars(in, end, value).ptr + 1;
            sum += value;
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * kNumbers);
}
BENCHMARK(readNumbersFromChars)->Unit(benchmark::kMillisecond);

/// A mesh of quads, as a document keeps it.
struct CMesh {
    CTestBlockHost host;
    TZelComPtr<CZELGeoReader::CPoints> points{new CZELGeoReader::CPoints(nullptr)};
    TZelComPtr<CZELGeoReader::CPolygons> polygons{new CZELGeoReader::CPolygons(nullptr)};

    void read(const std::string& text)
    {
        CStepReadStream stream(text);
        OrvaneXML::CXMLBufferedReader in(&stream);
        CZELGeoReader storage(host.blockMgrRef(), *points, *polygons);
        CGeometryBlockReader(host, in, storage).readPolygons();
    }
};

std::string quads()
{
    std::string text = "200000 ";
    for (int i = 0; i < 200'000; ++i)
        text += "o\t3 4 " + std::to_string(i) + " " + std::to_string(i + 1) + " " +
                std::to_string(i + 2) + " " + std::to_string(i + 3) + " \n";
    return text;
}

void readPolygons(benchmark::State& state)
{
    const std::string text = quads();
    CMesh mesh;
    for (auto _ : state)
        mesh.read(text);
    state.SetItemsProcessed(state.iterations() * mesh.polygons->size());
}
BENCHMARK(readPolygons)->Unit(benchmark::kMillisecond);

void writePolygons(benchmark::State& state)
{
    CMesh mesh;
    mesh.read(quads());
    for (auto _ : state) {
        CGeometrySection<CPolygonsProvider> section("Polygons");
        COwnStorage storage(section.host, *mesh.points, *mesh.polygons);
        section.host.storage = &storage;
        benchmark::DoNotOptimize(section.write());
    }
    state.SetItemsProcessed(state.iterations() * mesh.polygons->size());
}
BENCHMARK(writePolygons)->Unit(benchmark::kMillisecond);

} // namespace
