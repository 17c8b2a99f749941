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

/// One record of that many KiB that comes in many reads.
void joinLongRecord(benchmark::State &state)
{
    const QByteArray stream =
        HostRecord::encode(HostRecord::kFromHost, QString(static_cast<int>(state.range(0)) * 1024, QLatin1Char('a')));
    for (auto _ : state) {
        HostRecordReader reader(HostRecord::kFromHost);
        for (int position = 0; position < stream.size(); position += kReadSize)
            benchmark::DoNotOptimize(reader.read(stream.mid(position, kReadSize)));
    }
    state.SetBytesProcessed(state.iterations() * stream.size());
}

void dispatch(benchmark::State &state)
{
    TutorialManager manager(nullptr, nullptr);
    QStringList messages;
    for (int i = 0; i < state.range(0); ++i)
        messages.append(sampleMessage(i));
    for (auto _ : state) {
        for (const QString &message : qAsConst(messages))
            manager.onReceived(message);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
} // namespace

BENCHMARK(splitRecords)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(splitRecordsFloorCopyBytes)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(joinLongRecord)->Arg(1024)->Arg(8192)->Unit(benchmark::kMillisecond);
BENCHMARK(dispatch)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
