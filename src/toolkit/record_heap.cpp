#include "toolkit/record_heap.h"

#include <cstring>
#include <new>

namespace tavo {

void RecordHeap::Links::InsertBehind(Links& other)
{
    Next = other.Next;
    Previous = &other;
    Next->Previous = this;
    other.Next = this;
}

void RecordHeap::Links::Unlink()
{
    Previous->Next = Next;
    Next->Previous = Previous;
}

std::size_t RecordHeap::Capacity(std::size_t bytes)
{
    return bytes == 0 ? step : (bytes + step - 1) / step * step;
}

RecordHeap::Page& RecordHeap::PageOf(char* block)
{
    const auto address = reinterpret_cast<std::uintptr_t>(block);
    return *reinterpret_cast<Page*>(address & ~(std::uintptr_t{pageBytes} - 1));
}

RecordHeap::Page& RecordHeap::PageWithRoom(std::size_t capacity)
{
    Links& list = RoomFor(capacity);
    if (list.Next != &list)
        return static_cast<Page&>(*list.Next);
    void* memory = nullptr;
    if (emptyPages_ > 0) {
        memory = static_cast<Page*>(empty_.Next);
        empty_.Next->Unlink();
        --emptyPages_;
    } else {
        memory = ::operator new(pageBytes, std::align_val_t(pageBytes));
        ++pages_;
    }
    Page* page = new (memory) Page;
    page->BlockBytes = static_cast<std::uint32_t>(capacity);
    page->Fresh = static_cast<std::uint32_t>(Capacity(sizeof(Page)));
    page->InsertBehind(list);
    return *page;
}

char* RecordHeap::Allocate(std::size_t capacity)
{
    if (capacity > smallBytes) {
        void* memory = ::operator new(sizeof(Large) + capacity);
        Large* large = new (memory) Large;
        large->InsertBehind(large_);
        large->Bytes = sizeof(Large) + capacity;
        largeBytes_ += large->Bytes;
        return reinterpret_cast<char*>(large + 1);
    }
    Page& page = PageWithRoom(capacity);
    char* block = reinterpret_cast<char*>(&page);
    if (page.FirstFree != 0) {
        block += page.FirstFree;
        std::memcpy(&page.FirstFree, block, sizeof(page.FirstFree));
    } else {
        block += page.Fresh;
        page.Fresh += page.BlockBytes;
    }
    ++page.Live;
    if (!page.HasRoom()) {
        page.Unlink();
        page.InsertBehind(full_);
    }
    return block;
}

void RecordHeap::Free(char* block, std::size_t capacity)
{
    if (capacity > smallBytes) {
        Large* large = reinterpret_cast<Large*>(block) - 1;
        large->Unlink();
        largeBytes_ -= large->Bytes;
        ::operator delete(large);
        return;
    }
    Page& page = PageOf(block);
    const bool wasFull = !page.HasRoom();
    std::memcpy(block, &page.FirstFree, sizeof(page.FirstFree));
    page.FirstFree = static_cast<std::uint32_t>(block - reinterpret_cast<char*>(&page));
    if (--page.Live == 0) {
        FreePage(page);
    } else if (wasFull) {
        page.Unlink();
        page.InsertBehind(RoomFor(capacity));
    }
}

// Some stay for the next to come.
void RecordHeap::FreePage(Page& page)
{
    page.Unlink();
    page.InsertBehind(empty_);
    ++emptyPages_;
    while (emptyPages_ > keptPages + pages_ / 4) {
        ReleaseFirst(empty_);
        --emptyPages_;
        --pages_;
    }
}

void RecordHeap::ReleaseFirst(Links& list)
{
    Page* page = static_cast<Page*>(list.Next);
    page->Unlink();
    ::operator delete(static_cast<void*>(page), std::align_val_t(pageBytes));
}

void RecordHeap::Release(Links& list)
{
    while (list.Next != &list)
        ReleaseFirst(list);
}

void RecordHeap::Clear()
{
    for (Links& list : room_)
        Release(list);
    Release(full_);
    Release(empty_);
    while (large_.Next != &large_) {
        Large* large = static_cast<Large*>(large_.Next);
        large->Unlink();
        ::operator delete(large);
    }
    pages_ = emptyPages_ = largeBytes_ = 0;
}

std::size_t RecordHeap::MemoryBytes() const
{
    return pages_ * pageBytes + largeBytes_;
}

} // namespace tavo
