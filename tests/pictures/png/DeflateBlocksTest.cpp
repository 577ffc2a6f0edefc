// SPDX-License-Identifier: MIT
#include "pictures/png/DeflateBlocks.h"

#include <QRandomGenerator>
#include <QTest>

#include <libdeflate.h>
#include <zlib.h>

#include <memory>
#include <vector>

using namespace lumora;

namespace
{

using Bytes = std::vector<std::uint8_t>;

Bytes noise(std::size_t count, quint32 values)
{
    QRandomGenerator random(7);
    Bytes bytes(count);
    for (std::uint8_t &byte : bytes)
        byte = static_cast<std::uint8_t>(random.bounded(values));
    return bytes;
}

/// Runs, repeats and noise in turn, so that blocks of several kinds follow each other.
Bytes mixture()
{
    Bytes bytes = noise(70000, 256);
    bytes.insert(bytes.end(), 90000, 17);
    const Bytes few = noise(120000, 5);
    bytes.insert(bytes.end(), few.begin(), few.end());
    bytes.insert(bytes.end(), bytes.begin(), bytes.begin() + 40000);
    return bytes;
}

Bytes byLibdeflate(const Bytes &bytes, int level)
{
    const std::unique_ptr<libdeflate_compressor, void (*)(libdeflate_compressor *)> compressor(
        libdeflate_alloc_compressor(level), libdeflate_free_compressor);
    Bytes stream(libdeflate_deflate_compress_bound(compressor.get(), bytes.size()));
    stream.resize(
        libdeflate_deflate_compress(compressor.get(), bytes.data(), bytes.size(), stream.data(), stream.size()));
    return stream;
}

Bytes byZlib(Bytes bytes, int level, int strategy)
{
    z_stream packer{};
    deflateInit2(&packer, level, Z_DEFLATED, -MAX_WBITS, 8, strategy);
    Bytes stream(deflateBound(&packer, bytes.size()));
    packer.next_in = bytes.data();
    packer.avail_in = static_cast<uInt>(bytes.size());
    packer.next_out = stream.data();
    packer.avail_out = static_cast<uInt>(stream.size());
    deflate(&packer, Z_FINISH);
    stream.resize(packer.total_out);
    deflateEnd(&packer);
    return stream;
}

/// The places where zlib stops between blocks when it unpacks them.
LastDeflateBlock foundByZlib(Bytes stream)
{
    z_stream inflater{};
    inflateInit2(&inflater, -MAX_WBITS);
    inflater.next_in = stream.data();
    inflater.avail_in = static_cast<uInt>(stream.size());
    LastDeflateBlock last;
    Bytes sink(1 << 16);
    for (int status = Z_OK; status == Z_OK || status == Z_BUF_ERROR;) {
        inflater.next_out = sink.data();
        inflater.avail_out = static_cast<uInt>(sink.size());
        status = inflate(&inflater, Z_BLOCK);
        constexpr int afterBlock = 128;
        constexpr int inLastBlock = 64;
        if ((inflater.data_type & afterBlock) == 0)
            continue;
        const std::size_t position = 8 * inflater.total_in - (static_cast<unsigned>(inflater.data_type) & 7U);
        if ((inflater.data_type & inLastBlock) != 0) {
            last.end = position;
            break;
        }
        last.first = position;
    }
    inflateEnd(&inflater);
    return last;
}

} // namespace

class DeflateBlocksTest : public QObject
{
    Q_OBJECT

private slots:
    void findsWhatZlibFinds_data();
    void findsWhatZlibFinds();
    void cutStreamsHaveNone();
    void brokenStreamsAreSurvived();
    void unknownKindsAreRefused();
};

void DeflateBlocksTest::findsWhatZlibFinds_data()
{
    QTest::addColumn<Bytes>("stream");
    for (const int level : {0, 1, 4, 7, 12}) {
        QTest::addRow("nothing, level %d", level) << byLibdeflate({}, level);
        QTest::addRow("one byte, level %d", level) << byLibdeflate({42}, level);
        QTest::addRow("one color, level %d", level) << byLibdeflate(Bytes(500000, 9), level);
        QTest::addRow("noise, level %d", level) << byLibdeflate(noise(200000, 256), level);
        QTest::addRow("faint noise, level %d", level) << byLibdeflate(noise(600000, 23), level);
        QTest::addRow("mixture, level %d", level) << byLibdeflate(mixture(), level);
    }
    QTest::newRow("zlib, fixed codes") << byZlib(mixture(), 9, Z_FIXED);
    QTest::newRow("zlib, no matches") << byZlib(mixture(), 6, Z_HUFFMAN_ONLY);
    QTest::newRow("zlib, stored") << byZlib(mixture(), 0, Z_DEFAULT_STRATEGY);
    QTest::newRow("zlib, best") << byZlib(mixture(), 9, Z_DEFAULT_STRATEGY);
}

void DeflateBlocksTest::findsWhatZlibFinds()
{
    QFETCH(Bytes, stream);
    const std::optional<LastDeflateBlock> last = findLastDeflateBlock(stream);
    QVERIFY(last);
    const LastDeflateBlock expected = foundByZlib(stream);
    QCOMPARE(last->first, expected.first);
    QCOMPARE(last->end, expected.end);
    QCOMPARE((last->end + 7) / 8, stream.size());
}

void DeflateBlocksTest::cutStreamsHaveNone()
{
    const Bytes stream = byLibdeflate(mixture(), 4);
    for (std::size_t length = 0; length < stream.size(); length += 1 + length / 50)
        QVERIFY(!findLastDeflateBlock(std::span(stream).first(length)));
    QVERIFY(!findLastDeflateBlock(std::span(stream).first(stream.size() - 1)));
}

void DeflateBlocksTest::brokenStreamsAreSurvived()
{
    const Bytes stream = byLibdeflate(mixture(), 4);
    QRandomGenerator random(3);
    for (int time = 0; time < 300; ++time) {
        Bytes broken = stream;
        for (int fault = 0; fault < 3; ++fault)
            broken[random.bounded(static_cast<quint32>(time < 150 ? 200 : broken.size()))] ^=
                static_cast<std::uint8_t>(1 + random.bounded(255U));
        const std::optional<LastDeflateBlock> last = findLastDeflateBlock(broken);
        if (last)
            QVERIFY(last->first < last->end && last->end <= 8 * broken.size());
    }
}

void DeflateBlocksTest::unknownKindsAreRefused()
{
    // A last block of the invalid kind.
    QVERIFY(!findLastDeflateBlock(Bytes{0b00000111, 0, 0, 0}));
}

QTEST_GUILESS_MAIN(DeflateBlocksTest)
#include "DeflateBlocksTest.moc"
