// SPDX-License-Identifier: MIT
#include "SizeTree.h"

#include <algorithm>

namespace lumora
{

namespace
{

using Sizes = QMap<QString, quint64>;

/// The files from `first` to `end`, all of which begin with the same `start` characters: a folder and its slash.
SizeNode nodeOf(const QString &name, Sizes::const_iterator first, Sizes::const_iterator end, qsizetype start, int depth)
{
    SizeNode node{name, 0, 0, {}, 0};
    // No deeper, however deep a name out of an archive goes.
    if (depth == SizeNode::depthKept) {
        for (; first != end; ++first) {
            node.bytes += first.value();
            ++node.files;
        }
        return node;
    }
    while (first != end) {
        const qsizetype slash = first.key().indexOf(u'/', start);
        const QString part = first.key().mid(start, slash < 0 ? -1 : slash - start);
        auto next = first;
        SizeNode child{part, 0, 0, {}, 0};
        if (slash < 0) {
            child.bytes = next.value();
            child.files = 1;
            ++next;
        } else {
            const QString folder = first.key().first(slash + 1);
            while (next != end && next.key().startsWith(folder))
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

SizeNode sizeTree(const QMap<QString, quint64> &sizes)
{
    return nodeOf({}, sizes.constBegin(), sizes.constEnd(), 0, 0);
}

} // namespace lumora
