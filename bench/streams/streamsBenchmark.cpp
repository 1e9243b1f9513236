#include "VoBitStream.h"
#include "VoFlatMemBuf.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

// Runs of bytes against memcpy over the same places, coded values, and what a stream costs as it
// grows. Runs go through a megabyte again and again, so both sides find their bytes in the cache.

namespace {

constexpr std::size_t kSpan = std::size_t{1} << 20;
constexpr unsigned kValues = 100000;

std::vector<unsigned char> pattern(std::size_t size) {
    std::vector<unsigned char> bytes(size);
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<unsigned char>(i * 131 >> 3);
    }
    return bytes;
}

// Arguments of runs: bytes a run, and the bit that it starts at.
unsigned runOf(const benchmark::State& state) {
    return static_cast<unsigned>(state.range(0));
}

void countRun(benchmark::State& state) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

void copyOut(benchmark::State& state) {
    const unsigned run = runOf(state);
    const std::vector<unsigned char> source = pattern(kSpan + run);
    std::vector<unsigned char> target(run);
    std::size_t place = 0;
    for (auto _ : state) {
        std::memcpy(target.data(), source.data() + place, run);
        benchmark::ClobberMemory();
        place = (place + run) % kSpan;
    }
    countRun(state);
}

void copyIn(benchmark::State& state) {
    const unsigned run = runOf(state);
    const std::vector<unsigned char> source = pattern(run);
    std::vector<unsigned char> target(kSpan + run);
    std::size_t place = 0;
    for (auto _ : state) {
        std::memcpy(target.data() + place, source.data(), run);
        benchmark::ClobberMemory();
        place = (place + run) % kSpan;
    }
    countRun(state);
}

void readRuns(benchmark::State& state) {
    const unsigned run = runOf(state);
    const auto bit = static_cast<unsigned>(state.range(1));
    const std::vector<unsigned char> source = pattern(kSpan + std::size_t{2} * run);
    VoFlatMemBuf buffer;
    buffer.open(source.data(), static_cast<unsigned>(source.size()), 0);
    VoBitStream stream(&buffer, source.size() * 8);
    std::vector<unsigned char> target(run);
    stream.seek(bit, VoIO::fromStart);
    for (auto _ : state) {
        stream.readBytes(target.data(), run);
        benchmark::ClobberMemory();
        if (stream.tell() >= kSpan * 8) {
            stream.seek(bit, VoIO::fromStart);
        }
    }
    countRun(state);
}

void writeRuns(benchmark::State& state) {
    const unsigned run = runOf(state);
    const auto bit = static_cast<unsigned>(state.range(1));
    const std::vector<unsigned char> source = pattern(run);
    VoFlatMemBuf buffer;
    buffer.setlength(kSpan + std::size_t{2} * run);
    VoBitStream stream(&buffer, buffer.length() * 8);
    stream.seek(bit, VoIO::fromStart);
    for (auto _ : state) {
        stream.writeBytes(source.data(), run);
        benchmark::ClobberMemory();
        if (stream.tell() >= kSpan * 8) {
            stream.seek(bit, VoIO::fromStart);
        }
    }
    countRun(state);
}

// Every third number has the long form.
double numberAt(unsigned i) {
    return i % 3 == 2 ? 0.37 * i : i % 3;
}

std::uint32_t countAt(unsigned i) {
    return i % 3 == 2 ? i * 257 : i % 256;
}

template <class Write>
void writeValues(benchmark::State& state, Write write) {
    for (auto _ : state) {
        VoFlatMemBuf buffer;
        VoBitStream stream(&buffer);
        for (unsigned i = 0; i < kValues; ++i) {
            write(stream, i);
        }
        benchmark::DoNotOptimize(stream.length());
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * kValues);
}

template <class T, class Write>
void readValues(benchmark::State& state, Write write, void (VoBitStream::*read)(T&)) {
    VoFlatMemBuf buffer;
    VoBitStream stream(&buffer);
    for (unsigned i = 0; i < kValues; ++i) {
        write(stream, i);
    }
    for (auto _ : state) {
        stream.seek(0, VoIO::fromStart);
        T sum{};
        for (unsigned i = 0; i < kValues; ++i) {
            T value{};
            (stream.*read)(value);
            sum = static_cast<T>(sum + value);
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * kValues);
}

void writeDouble(VoBitStream& stream, unsigned i) {
    stream.writeDouble(numberAt(i));
}
void writeUInt16(VoBitStream& stream, unsigned i) {
    stream.writeUInt16(static_cast<std::uint16_t>(countAt(i)));
}
void writeUInt32(VoBitStream& stream, unsigned i) {
    stream.writeUInt32(countAt(i));
}

// The argument is the size of the whole, filled from nothing; this is what the memory alone costs.
void fillFreshMemory(benchmark::State& state) {
    constexpr std::int64_t kRun = 1000;
    const std::vector<unsigned char> source = pattern(kRun);
    for (auto _ : state) {
        const std::unique_ptr<unsigned char[]> target(
            new unsigned char[static_cast<std::size_t>(state.range(0))]);
        for (std::int64_t done = 0; done < state.range(0); done += kRun) {
            std::memcpy(target.get() + done, source.data(), kRun);
        }
        benchmark::DoNotOptimize(target.get());
        benchmark::ClobberMemory();
    }
    countRun(state);
}

void fillByRuns(benchmark::State& state) {
    constexpr std::int64_t kRun = 1000;
    const std::vector<unsigned char> source = pattern(kRun);
    for (auto _ : state) {
        VoFlatMemBuf buffer;
        VoBitStream stream(&buffer);
        stream.writeBits(0, static_cast<unsigned>(state.range(1)));
        for (std::int64_t done = 0; done < state.range(0); done += kRun) {
            stream.writeBytes(source.data(), kRun);
        }
        benchmark::DoNotOptimize(buffer.length());
    }
    countRun(state);
}

void fillByBytes(benchmark::State& state) {
    for (auto _ : state) {
        VoFlatMemBuf buffer;
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            buffer.writeByte(static_cast<unsigned char>(i));
        }
        benchmark::DoNotOptimize(buffer.length());
    }
    countRun(state);
}

// Two buffers that grow in turn stand in each other's way.
void fillTwoByRuns(benchmark::State& state) {
    constexpr std::int64_t kRun = 1000;
    const std::vector<unsigned char> source = pattern(kRun);
    for (auto _ : state) {
        VoFlatMemBuf buffers[2];
        for (std::int64_t done = 0; done < state.range(0); done += 2 * kRun) {
            buffers[0].writeBytes(source.data(), kRun);
            buffers[1].writeBytes(source.data(), kRun);
        }
        benchmark::DoNotOptimize(buffers[1].length());
    }
    countRun(state);
}

void runs(benchmark::internal::Benchmark* benchmark) {
    for (const std::int64_t run : {64, 4096, 65536}) {
        for (const std::int64_t bit : {0, 3}) {
            benchmark->Args({run, bit});
        }
    }
}

BENCHMARK(copyOut)->Arg(64)->Arg(4096)->Arg(65536);
BENCHMARK(readRuns)->Apply(runs);
BENCHMARK(copyIn)->Arg(64)->Arg(4096)->Arg(65536);
BENCHMARK(writeRuns)->Apply(runs);
BENCHMARK_CAPTURE(writeValues, Double, writeDouble)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writeValues, UInt16, writeUInt16)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writeValues, UInt32, writeUInt32)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readValues, Double, writeDouble, &VoBitStream::readDouble)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readValues, UInt16, writeUInt16, &VoBitStream::readUInt16)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readValues, UInt32, writeUInt32, &VoBitStream::readUInt32)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillFreshMemory)
    ->RangeMultiplier(10)
    ->Range(1000, 100000000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillByRuns)
    ->ArgsProduct({{1000, 10000, 100000, 1000000, 10000000, 100000000}, {0, 3}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillByBytes)->RangeMultiplier(10)->Range(1000, 100000000)->Unit(benchmark::kMillisecond);
BENCHMARK(fillTwoByRuns)
    ->RangeMultiplier(10)
    ->Range(10000, 100000000)
    ->Unit(benchmark::kMillisecond);

} // namespace
