// What comes over the link: bytes to messages, and messages to what they do.

#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"
#include "Tutorial/link/HostRecordReader.h"
#include "Tutorial/TutorialManager.h"

#include <benchmark/benchmark.h>

namespace
{
constexpr int kReadSize = 65536;

QString sampleMessage(int i)
{
    return HostMessages::message(HostMessages::FromHost::kWindowPosition, QStringLiteral("key%1").arg(i % 50), i % 1280,
                                 i % 1024);
}

QByteArray sampleStream(int count)
{
    QByteArray stream;
    for (int i = 0; i < count; ++i)
        stream += HostRecord::encode(HostRecord::kFromHost, sampleMessage(i));
    return stream;
}

void splitRecords(benchmark::State &state)
{
    const QByteArray stream = sampleStream(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        HostRecordReader reader(HostRecord::kFromHost);
        for (int position = 0; position < stream.size(); position += kReadSize)
            benchmark::DoNotOptimize(reader.read(stream.mid(position, kReadSize)));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void splitRecordsFloorCopyBytes(benchmark::State &state)
{
    const QByteArray stream = sampleStream(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(QByteArray(stream.constData(), stream.size()));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// One record of so many times 640 bytes, which comes in many reads. The largest is about what a record may have.
QByteArray longRecord(const benchmark::State &state)
{
    return HostRecord::encode(HostRecord::kFromHost, QString(static_cast<int>(state.range(0)) * 640, QLatin1Char('a')));
}

void joinLongRecord(benchmark::State &state)
{
    const QByteArray stream = longRecord(state);
    for (auto _ : state) {
        HostRecordReader reader(HostRecord::kFromHost);
        for (int position = 0; position < stream.size(); position += kReadSize)
            benchmark::DoNotOptimize(reader.read(stream.mid(position, kReadSize)));
    }
    state.SetBytesProcessed(state.iterations() * stream.size());
}

void joinLongRecordFloorDecode(benchmark::State &state)
{
    const QByteArray stream = longRecord(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(QString::fromUtf8(stream));
    state.SetBytesProcessed(state.iterations() * stream.size());
}

QStringList sampleMessages(const benchmark::State &state)
{
    QStringList messages;
    for (int i = 0; i < state.range(0); ++i)
        messages.append(sampleMessage(i));
    return messages;
}

void dispatch(benchmark::State &state)
{
    TutorialManager manager(nullptr, nullptr);
    const QStringList messages = sampleMessages(state);
    for (auto _ : state) {
        for (const QString &message : messages)
            manager.onReceived(message);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void dispatchFloorSplit(benchmark::State &state)
{
    const QStringList messages = sampleMessages(state);
    for (auto _ : state) {
        for (const QString &message : messages)
            benchmark::DoNotOptimize(HostMessages::split(message));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
}
} // namespace

BENCHMARK(splitRecords)->Apply(sizes);
BENCHMARK(splitRecordsFloorCopyBytes)->Apply(sizes);
BENCHMARK(joinLongRecord)->Apply(sizes);
BENCHMARK(joinLongRecordFloorDecode)->Apply(sizes);
BENCHMARK(dispatch)->Apply(sizes);
BENCHMARK(dispatchFloorSplit)->Apply(sizes);
