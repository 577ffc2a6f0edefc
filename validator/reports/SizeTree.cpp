// SPDX-License-Identifier: MIT
#include "SizeTree.h"

#include <algorithm>

namespace lumora
{

namespace
{

using Place = QList<PackageFile>::const_iterator;

/// The files from `first` to `end`, all of which begin with the same `start` characters: a folder and its slash.
SizeNode nodeOf(const QString &name, Place first, Place end, qsizetype start, int depth)
{
    SizeNode node{name, 0, 0, {}, 0};
    // No deeper, however deep a name out of an archive goes.
    if (depth == SizeNode::depthKept) {
        for (; first != end; ++first) {
            node.bytes += first->size;
            ++node.files;
        }
        return node;
    }
    while (first != end) {
        const qsizetype slash = first->path.indexOf(u'/', start);
        const QString part = first->path.mid(start, slash < 0 ? -1 : slash - start);
        auto next = first;
        SizeNode child{part, 0, 0, {}, 0};
        if (slash < 0) {
            child.bytes = next->size;
            child.files = 1;
            ++next;
        } else {
            const QString folder = first->path.first(slash + 1);
            while (next != end && next->path.startsWith(folder))
                ++next;
            child = nodeOf(part, first, next, slash + 1, depth + 1);
        }
        node.bytes += child.bytes;
        node.files += child.files;
        node.parts += std::move(child);
        first = next;
    }
    std::ranges::stable_sort(node.parts, std::ranges::greater(), &SizeNode::bytes);
    node.more = std::max<qsizetype>(0, node.parts.size() - SizeNode::partsKept);
    node.parts.resize(node.parts.size() - node.more);
    return node;
}

} // namespace

SizeNode sizeTree(const QList<PackageFile> &files)
{
    return nodeOf({}, files.constBegin(), files.constEnd(), 0, 0);
}

} // namespace lumora
