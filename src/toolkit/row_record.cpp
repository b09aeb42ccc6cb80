#include "toolkit/row_record.h"

#include "toolkit/record_heap.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <new>
#include <string>

namespace tavo {

namespace {

constexpr std::size_t narrowLimit = 0xFFFF;

std::size_t EndBytes(std::size_t textBytes)
{
    return textBytes > narrowLimit ? sizeof(std::uint32_t) : sizeof(std::uint16_t);
}

} // namespace

RowRecord::RowRecord(RecordHeap& heap, const std::string_view* fields, std::size_t count)
{
    std::size_t textBytes = 0;
    for (std::size_t i = 0; i < count; ++i)
        textBytes += fields[i].size();
    Allocate(heap, count, textBytes);
    std::size_t end = 0;
    for (std::size_t i = 0; i < count; ++i)
        Append(i, end, fields[i]);
}

void RowRecord::Free(RecordHeap& heap)
{
    if (block_ != nullptr)
        heap.Free(block_, head().Capacity);
    block_ = nullptr;
}

void RowRecord::Allocate(RecordHeap& heap, std::size_t fields, std::size_t textBytes)
{
    const std::size_t bytes = sizeof(Head) + fields * EndBytes(textBytes) + textBytes;
    const std::size_t capacity = RecordHeap::Capacity(bytes);
    block_ = heap.Allocate(capacity);
    new (block_) Head{static_cast<std::uint32_t>(capacity), static_cast<std::uint16_t>(fields),
                      textBytes > narrowLimit};
}

void RowRecord::Append(std::size_t number, std::size_t& end, std::string_view text)
{
    if (!text.empty())
        std::memcpy(block_ + TextsAt() + end, text.data(), text.size());
    end += text.size();
    MoveEnd(number, end);
}

void RowRecord::MoveEnd(std::size_t number, std::size_t end)
{
    char* ends = block_ + sizeof(Head);
    if (head().Wide)
        reinterpret_cast<std::uint32_t*>(ends)[number] = static_cast<std::uint32_t>(end);
    else
        reinterpret_cast<std::uint16_t*>(ends)[number] = static_cast<std::uint16_t>(end);
}

bool RowRecord::FitsInPlace(std::size_t fields, std::size_t textBytes) const
{
    if (block_ == nullptr || fields != head().Fields || head().Wide != (textBytes > narrowLimit))
        return false;
    const std::size_t bytes = sizeof(Head) + fields * EndBytes(textBytes) + textBytes;
    // A block that a long text has left half empty is given back.
    return bytes <= head().Capacity && head().Capacity <= 2 * bytes + 64;
}

void RowRecord::SetField(RecordHeap& heap, std::size_t number, std::string_view text)
{
    const std::size_t now = block_ == nullptr ? 0 : head().Fields;
    const std::size_t fields = std::max(now, number + 1);
    const std::size_t textBytes =
        (now == 0 ? 0 : EndOf(now - 1)) - Field(number).size() + text.size();
    if (!FitsInPlace(fields, textBytes)) {
        Rebuild(heap, fields, textBytes, number, text);
        return;
    }
    const std::less<const char*> before;
    const bool ownPiece =
        !before(text.data(), block_) && before(text.data(), block_ + head().Capacity);
    if (ownPiece)
        Replace(number, std::string(text));
    else
        Replace(number, text);
}

void RowRecord::Replace(std::size_t number, std::string_view text)
{
    const std::size_t last = head().Fields - 1u;
    const std::size_t begin = number == 0 ? 0 : EndOf(number - 1);
    const std::size_t end = EndOf(number);
    const std::size_t newEnd = begin + text.size();
    char* texts = block_ + TextsAt();
    std::memmove(texts + newEnd, texts + end, EndOf(last) - end);
    if (!text.empty())
        std::memcpy(texts + begin, text.data(), text.size());
    for (std::size_t i = number; i <= last; ++i)
        MoveEnd(i, EndOf(i) - end + newEnd);
}

void RowRecord::Rebuild(RecordHeap& heap, std::size_t fields, std::size_t textBytes,
                        std::size_t number, std::string_view text)
{
    RowRecord old = *this; // lives on while `text` may lie in it
    Allocate(heap, fields, textBytes);
    std::size_t end = 0;
    for (std::size_t i = 0; i < fields; ++i)
        Append(i, end, i == number ? text : old.Field(i));
    old.Free(heap);
}

} // namespace tavo
