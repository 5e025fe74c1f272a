#include "engine/statement_cache.h"

#include <deque>
#include <new>
#include <vector>

namespace mx {

// An open-addressing table from keys to entries; the entries live in a deque,
// so their addresses stay put while the table grows.
class StatementCache {
public:
    CachedStatement *find(uint64_t key) const {
        if (slots_.empty()) return nullptr;
        for (size_t i = start(key);; i = (i + 1) & mask()) {
            const Slot &s = slots_[i];
            if (s.key == key) return s.entry;
            if (s.key == kEmpty) return nullptr;
        }
    }

    CachedStatement *add(uint64_t key) {
        if ((entries_.size() + 1) * 2 > slots_.size()) grow();
        entries_.emplace_back();
        CachedStatement *e = &entries_.back();
        place(key, e);
        return e;
    }

    size_t entries() const { return entries_.size(); }

    size_t memory() const {
        size_t bytes = sizeof(*this) + slots_.capacity() * sizeof(Slot) + entries_.size() * sizeof(CachedStatement);
        for (const CachedStatement &e : entries_) {
            if (e.formula.capacity() > 7) bytes += (e.formula.capacity() + 1) * sizeof(char16_t);
            if (e.program) bytes += fpMemory(*e.program);
        }
        return bytes;
    }

private:
    static constexpr uint64_t kEmpty = ~uint64_t(0);
    struct Slot {
        uint64_t key = kEmpty;
        CachedStatement *entry = nullptr;
    };

    size_t mask() const { return slots_.size() - 1; }
    size_t start(uint64_t key) const { return size_t((key * 0x9E3779B97F4A7C15ull) >> shift_); }

    void place(uint64_t key, CachedStatement *e) {
        size_t i = start(key);
        while (slots_[i].key != kEmpty) i = (i + 1) & mask();
        slots_[i] = Slot{key, e};
    }

    void grow() {
        std::vector<Slot> old;
        old.swap(slots_);
        size_t size = old.empty() ? 64 : old.size() * 2;
        slots_.resize(size);
        shift_ = 64;
        for (size_t s = size; s > 1; s >>= 1) --shift_;
        for (const Slot &s : old)
            if (s.key != kEmpty) place(s.key, s.entry);
    }

    std::vector<Slot> slots_;
    std::deque<CachedStatement> entries_;
    int32_t shift_ = 64;
};

namespace {
uint64_t keyOf(const RunContext &ctx, int32_t pos, CacheRole role) {
    return uint64_t(uint32_t(pos)) | uint64_t(role) << 32 | uint64_t(ctx.escape) << 33;
}
}  // namespace

StatementCache *scCreate() {
    try {
        return new StatementCache();
    } catch (const std::bad_alloc &) {  // the run reads everything from the text
        return nullptr;
    }
}

void scDestroy(StatementCache *cache) { delete cache; }

CachedStatement *scFind(RunContext &ctx, int32_t pos, CacheRole role) {
    return ctx.cache ? ctx.cache->find(keyOf(ctx, pos, role)) : nullptr;
}

CachedStatement *scAdd(RunContext &ctx, int32_t pos, CacheRole role) {
    if (!ctx.cache) return nullptr;
    try {
        return ctx.cache->add(keyOf(ctx, pos, role));
    } catch (const std::bad_alloc &) {  // the run goes on reading from the text
        return nullptr;
    }
}

size_t scEntries(const StatementCache *cache) { return cache ? cache->entries() : 0; }

size_t scMemory(const StatementCache *cache) { return cache ? cache->memory() : 0; }

}  // namespace mx
