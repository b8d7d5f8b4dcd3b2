#include "timeline/FrameList.h"

#include <algorithm>

namespace {
constexpr size_t blockCapacity = 512;
}

FrameList::FrameList() = default;
FrameList::~FrameList() = default;

const Frame &FrameList::at(int row) const
{
    const Place place = placeOf(row);
    return m_blocks[place.block]->nodes[place.offset]->frame;
}

Frame &FrameList::at(int row)
{
    const Place place = placeOf(row);
    return m_blocks[place.block]->nodes[place.offset]->frame;
}

int FrameList::rowOf(int guid) const
{
    m_probe.setGuid(guid);
    const auto [begin, end] = m_nodesByGuid.equal_range(m_probe.guid());
    int row = -1;
    for (auto entry = begin; entry != end; ++entry) {
        const int candidate = rowOfNode(entry->second);
        if (row < 0 || candidate < row)
            row = candidate;
    }
    return row;
}

void FrameList::insert(int row, const Frame &frame)
{
    auto node = std::make_unique<Node>();
    node->frame = frame;
    m_nodesByGuid.emplace(frame.guid(), node.get());
    insertNode(row, std::move(node));
}

void FrameList::remove(int row)
{
    unindex(takeNode(row).get());
}

void FrameList::move(int from, int to)
{
    insertNode(to, takeNode(from));
}

void FrameList::clear()
{
    m_nodesByGuid.clear();
    m_blocks.clear();
    m_count = 0;
    m_numberedBlocks = 0;
}

bool FrameList::setGuid(int row, int guid)
{
    if (!Frame::isGuid(guid))
        return false;
    const Place place = placeOf(row);
    Node *node = m_blocks[place.block]->nodes[place.offset].get();
    unindex(node);
    node->frame.setGuid(guid);
    m_nodesByGuid.emplace(guid, node);
    return true;
}

FrameList::Place FrameList::placeOf(int row) const
{
    number(m_blocks.size());
    const auto after = std::upper_bound(
        m_blocks.begin(), m_blocks.end(), row,
        [](int wanted, const std::unique_ptr<Block> &block) { return wanted < block->firstRow; });
    const Block &block = **std::prev(after);
    return {block.position, size_t(row - block.firstRow)};
}

int FrameList::rowOfNode(const Node *node) const
{
    number(m_blocks.size());
    const auto &nodes = node->block->nodes;
    const auto found = std::find_if(nodes.begin(), nodes.end(), [node](const std::unique_ptr<Node> &other) {
        return other.get() == node;
    });
    return node->block->firstRow + int(found - nodes.begin());
}

void FrameList::number(size_t upToBlock) const
{
    for (; m_numberedBlocks < upToBlock; ++m_numberedBlocks) {
        Block &block = *m_blocks[m_numberedBlocks];
        block.position = m_numberedBlocks;
        block.firstRow = 0;
        if (m_numberedBlocks > 0) {
            const Block &previous = *m_blocks[m_numberedBlocks - 1];
            block.firstRow = previous.firstRow + int(previous.nodes.size());
        }
    }
}

void FrameList::forgetNumbersFrom(size_t block)
{
    m_numberedBlocks = std::min(m_numberedBlocks, block);
}

void FrameList::insertNode(int row, std::unique_ptr<Node> node)
{
    if (m_blocks.empty())
        m_blocks.push_back(std::make_unique<Block>());
    // The row behind the last one belongs to the last block.
    Place place{m_blocks.size() - 1, m_blocks.back()->nodes.size()};
    if (row < m_count)
        place = placeOf(row);
    Block &block = *m_blocks[place.block];
    node->block = &block;
    block.nodes.insert(block.nodes.begin() + std::ptrdiff_t(place.offset), std::move(node));
    ++m_count;
    forgetNumbersFrom(place.block + 1);
    if (block.nodes.size() > blockCapacity)
        split(place.block);
}

std::unique_ptr<FrameList::Node> FrameList::takeNode(int row)
{
    const Place place = placeOf(row);
    auto &nodes = m_blocks[place.block]->nodes;
    std::unique_ptr<Node> node = std::move(nodes[place.offset]);
    nodes.erase(nodes.begin() + std::ptrdiff_t(place.offset));
    --m_count;
    forgetNumbersFrom(place.block + 1);
    if (nodes.empty()) {
        m_blocks.erase(m_blocks.begin() + std::ptrdiff_t(place.block));
        forgetNumbersFrom(place.block);
    }
    return node;
}

void FrameList::split(size_t position)
{
    Block &full = *m_blocks[position];
    // A list that grows at its end keeps its blocks full.
    const bool growsAtEnd = position + 1 == m_blocks.size();
    const size_t kept = growsAtEnd ? blockCapacity : blockCapacity / 2;
    auto rest = std::make_unique<Block>();
    rest->nodes.assign(std::make_move_iterator(full.nodes.begin() + std::ptrdiff_t(kept)),
                       std::make_move_iterator(full.nodes.end()));
    full.nodes.resize(kept);
    for (const auto &node : rest->nodes)
        node->block = rest.get();
    m_blocks.insert(m_blocks.begin() + std::ptrdiff_t(position) + 1, std::move(rest));
    forgetNumbersFrom(position + 1);
}

void FrameList::unindex(const Node *node)
{
    const auto [begin, end] = m_nodesByGuid.equal_range(node->frame.guid());
    const auto entry = std::find_if(begin, end, [node](const auto &pair) { return pair.second == node; });
    if (entry != end)
        m_nodesByGuid.erase(entry);
}
