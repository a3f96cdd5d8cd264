#include "release.h"

#include "EntryBlock.h"
#include "PointerBlock.h"

#include <utility>

namespace zel::common::types {
namespace {

/// How deep values are freed one inside the other, which is the order that leaves memory in the
/// best state for what is built next. What lies deeper waits until the outermost call is done with
/// the rest. Hardly any tree gets there.
constexpr int maxDepth = 64;

/// The state of this thread. The model spares a call for each access.
struct Progress {
    int depth = 0;
    Storage* waiting = nullptr;
};
[[gnu::tls_model("initial-exec")]] constinit thread_local Progress progress;

void wait(Storage* chain) noexcept
{
    Storage* last = chain;
    while (last->next != nullptr) {
        last = last->next;
    }
    last->next = std::exchange(progress.waiting, chain);
}

void freeEntries(EntryBlock* block) noexcept
{
    for (EntryBlock::Entry const& entry : *block) {
        delete static_cast<zel::dataformats::data::Value*>(entry.second);
    }
    EntryBlock::destroy(block);
}

void freePointers(PointerBlock* block) noexcept
{
    for (zel::dataformats::data::Value const* value : *block) {
        delete value;
    }
    PointerBlock::destroy(block);
}

void freeAll(Storage* chain) noexcept
{
    while (chain != nullptr) {
        Storage* const storage = std::exchange(chain, chain->next);
        if (storage->kind == Storage::Kind::Entries) {
            freeEntries(static_cast<EntryBlock*>(storage));
        } else {
            freePointers(static_cast<PointerBlock*>(storage));
        }
    }
}

} // namespace

void release(Storage* chain) noexcept
{
    if (chain == nullptr) {
        return;
    }
    if (progress.depth == maxDepth) {
        wait(chain);
        return;
    }
    ++progress.depth;
    freeAll(chain);
    while (progress.depth == 1 && progress.waiting != nullptr) {
        freeAll(std::exchange(progress.waiting, nullptr));
    }
    --progress.depth;
}

} // namespace zel::common::types
