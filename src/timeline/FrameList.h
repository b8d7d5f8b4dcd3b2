#pragma once

#include "timeline/Frame.h"

#include <memory>
#include <unordered_map>
#include <vector>

/// The frames of the timeline in row order, with lookup by GUID. Owns its frames.
///
/// Rows are kept in short blocks, so that reading a row, finding a GUID, inserting, removing and moving all
/// cost far less than a pass over the list. Main thread only; rows given to at(), remove() and move() must
/// exist.
class FrameList
{
public:
    FrameList();
    ~FrameList();
    FrameList(const FrameList &) = delete;
    FrameList &operator=(const FrameList &) = delete;

    int count() const
    {
        return m_count;
    }
    bool isEmpty() const
    {
        return m_count == 0;
    }
    bool contains(int row) const
    {
        return row >= 0 && row < m_count;
    }
    const Frame &at(int row) const;
    /// To write fields. The GUID is written by setGuid() only, since it is indexed.
    Frame &at(int row);

    /// The first row with that GUID, or -1. A value that is no GUID repeats the lookup of the last real one.
    int rowOf(int guid) const;

    /// Row from 0 to count().
    void insert(int row, const Frame &frame);
    void remove(int row);
    /// Takes the frame out and puts it back so that it stands at row `to`.
    void move(int from, int to);
    void clear();
    /// False, with nothing changed, when the value is no GUID.
    bool setGuid(int row, int guid);

    /// Calls visit(frame) for the rows from first to last in order.
    template <typename Visit>
    void forEach(int first, int last, Visit visit) const
    {
        for (int row = first; row <= last;) {
            const Place place = placeOf(row);
            const auto &nodes = m_blocks[place.block]->nodes;
            for (size_t i = place.offset; i < nodes.size() && row <= last; ++i, ++row)
                visit(static_cast<const Frame &>(nodes[i]->frame));
        }
    }

private:
    struct Block;
    struct Node
    {
        Frame frame;
        Block *block = nullptr;
    };
    struct Block
    {
        std::vector<std::unique_ptr<Node>> nodes;
        size_t position = 0;
        int firstRow = 0;
    };
    struct Place
    {
        size_t block;
        size_t offset;
    };

    Place placeOf(int row) const;
    int rowOfNode(const Node *node) const;
    void number(size_t upToBlock) const;
    void forgetNumbersFrom(size_t block);
    void insertNode(int row, std::unique_ptr<Node> node);
    std::unique_ptr<Node> takeNode(int row);
    void split(size_t block);
    void unindex(const Node *node);

    std::vector<std::unique_ptr<Block>> m_blocks;
    std::unordered_multimap<int, Node *> m_nodesByGuid;
    int m_count = 0;
    /// Blocks before this one have a right position and first row.
    mutable size_t m_numberedBlocks = 0;
    mutable Frame m_probe;
};
