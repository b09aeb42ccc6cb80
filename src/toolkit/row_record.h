#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tavo {

class RecordHeap;

// The texts of one row, packed in one block of a heap: no more than a few
// bytes go on top of the texts themselves. A field that was never written, or
// lies beyond, is empty. It is a mere handle: the heap owns the block.
class RowRecord {
public:
    RowRecord() = default;
    RowRecord(RecordHeap& heap, const std::string_view* fields, std::size_t count);
    void Free(RecordHeap& heap);

    // Holds until the record is written to.
    std::string_view Field(std::size_t number) const;
    // `text` may be a piece of the record itself. Numbers up to 65534.
    void SetField(RecordHeap& heap, std::size_t number, std::string_view text);

private:
    // In front of the ends of the fields, which are 16 bits wide or, where the
    // texts are too long for that, 32; the texts come behind.
    struct Head {
        std::uint32_t Capacity;
        std::uint16_t Fields;
        bool Wide;
    };

    const Head& head() const { return *reinterpret_cast<const Head*>(block_); }
    std::size_t EndOf(std::size_t number) const;
    std::size_t TextsAt() const;
    void Allocate(RecordHeap& heap, std::size_t fields, std::size_t textBytes);
    void Append(std::size_t number, std::size_t& end, std::string_view text);
    bool FitsInPlace(std::size_t fields, std::size_t textBytes) const;
    void Replace(std::size_t number, std::string_view text);
    void Rebuild(RecordHeap& heap, std::size_t fields, std::size_t textBytes, std::size_t number,
                 std::string_view text);
    void MoveEnd(std::size_t number, std::size_t end);

    char* block_ = nullptr;
};

inline std::size_t RowRecord::EndOf(std::size_t number) const
{
    const char* ends = block_ + sizeof(Head);
    return head().Wide ? reinterpret_cast<const std::uint32_t*>(ends)[number]
                       : reinterpret_cast<const std::uint16_t*>(ends)[number];
}

inline std::size_t RowRecord::TextsAt() const
{
    return sizeof(Head) + head().Fields * (head().Wide ? sizeof(std::uint32_t) : 2);
}

inline std::string_view RowRecord::Field(std::size_t number) const
{
    if (block_ == nullptr || number >= head().Fields)
        return {};
    const std::size_t begin = number == 0 ? 0 : EndOf(number - 1);
    return {block_ + TextsAt() + begin, EndOf(number) - begin};
}

} // namespace tavo
