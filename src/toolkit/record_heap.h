#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tavo {

// Memory for very many small blocks of a few sizes: without a head on each,
// and a page that has become empty serves another size. All is given back at
// once when the heap goes or is cleared, which costs no walk over the blocks.
class RecordHeap {
public:
    RecordHeap() = default;
    ~RecordHeap() { Clear(); }
    RecordHeap(const RecordHeap&) = delete;
    RecordHeap& operator=(const RecordHeap&) = delete;

    // What a block of at least `bytes` will hold.
    static std::size_t Capacity(std::size_t bytes);
    // `capacity` as Capacity gave it, here and when the block is freed. Blocks
    // are aligned for numbers of 64 bits.
    char* Allocate(std::size_t capacity);
    void Free(char* block, std::size_t capacity);
    void Clear();
    std::size_t MemoryBytes() const;

private:
    static constexpr std::size_t pageBytes = 32768;
    static constexpr std::size_t step = 8;
    static constexpr std::size_t smallBytes = 512; // larger blocks stand alone
    static constexpr std::size_t keptPages = 8;

    struct Links {
        Links* Next = this;
        Links* Previous = this;
        void InsertBehind(Links& other);
        void Unlink();
    };
    // At the front of each page and at an address that its blocks tell.
    struct Page : Links {
        std::uint32_t BlockBytes = 0;
        std::uint32_t Live = 0;
        std::uint32_t FirstFree = 0; // a chain of offsets; 0 ends it
        std::uint32_t Fresh = 0;     // never used from this offset on
        bool HasRoom() const { return FirstFree != 0 || Fresh + BlockBytes <= pageBytes; }
    };
    struct Large : Links {
        std::size_t Bytes = 0;
    };

    static Page& PageOf(char* block);
    Links& RoomFor(std::size_t capacity) { return room_[capacity / step]; }
    Page& PageWithRoom(std::size_t capacity);
    void FreePage(Page& page);
    static void ReleaseFirst(Links& list);
    static void Release(Links& list);

    // By size: pages with room. Full ones and empty ones stand in lists of
    // their own.
    std::array<Links, smallBytes / step + 1> room_;
    Links full_, empty_, large_;
    std::size_t pages_ = 0, emptyPages_ = 0, largeBytes_ = 0;
};

} // namespace tavo
