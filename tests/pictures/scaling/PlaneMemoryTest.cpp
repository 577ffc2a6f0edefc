// SPDX-License-Identifier: MIT
#include "pictures/scaling/ColorPlanes.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

using namespace lumora;

namespace
{

struct GuardedBlock
{
    char *start = nullptr;
    char *pages = nullptr;
    std::size_t length = 0;
};
/// No memory is allocated to keep them, since they are kept by the allocator itself.
std::array<GuardedBlock, 64> blocks;

} // namespace

extern "C" void __libc_free(void *memory);

/// Blocks that end where a page ends behind which nothing can be read.
extern "C" void *aligned_alloc(std::size_t, std::size_t count) noexcept
{
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    const std::size_t readable = (count + page - 1) / page * page;
    const auto block =
        std::find_if(blocks.begin(), blocks.end(), [](const auto &each) { return each.start == nullptr; });
    if (block == blocks.end())
        return nullptr;
    void *pages = ::mmap(nullptr, readable + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED)
        return nullptr;
    block->pages = static_cast<char *>(pages);
    block->length = readable + page;
    block->start = block->pages + (readable - count);
    ::mprotect(block->pages + readable, page, PROT_NONE);
    return block->start;
}

extern "C" void free(void *memory) noexcept
{
    for (GuardedBlock &block : blocks) {
        if (memory != nullptr && block.start == memory) {
            ::munmap(block.pages, block.length);
            block = {};
            return;
        }
    }
    __libc_free(memory);
}

/// What is read of the memory behind planes, which the system may have given to nobody.
class PlaneMemoryTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingBehindAPlaneIsNeeded_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        for (const auto &[from, to] :
             {std::pair(32, 31), std::pair(32, 29), std::pair(1024, 1000), std::pair(1024, 1500)})
            QTest::addRow("%d to %d", from, to) << from << to;
    }
    void nothingBehindAPlaneIsNeeded()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        for (const SampleDepth depth : {SampleDepth::Bits8, SampleDepth::Bits16}) {
            const ColorPlanes planes({from, from}, 1, depth);
            const auto scaled = planes.scaledTo({to, to});
            QVERIFY(scaled.ok());
            QCOMPARE(scaled.value()->size(), QSize(to, to));
        }
    }
};

QTEST_GUILESS_MAIN(PlaneMemoryTest)
#include "PlaneMemoryTest.moc"
