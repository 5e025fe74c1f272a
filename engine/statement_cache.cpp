#include "engine/statement_cache.h"

#include <new>

namespace mx {

CachedStatement *StatementCache::add(uint64_t key) {
    if ((entries_.size() + 1) * 2 > slots_.size()) grow();
    entries_.emplace_back();
    CachedStatement *e = &entries_.back();
    place(key, e);
    return e;
}

size_t StatementCache::memory() const {
    size_t bytes = sizeof(*this) + slots_.capacity() * sizeof(Slot) + entries_.size() * sizeof(CachedStatement);
    for (const CachedStatement &e : entries_) {
        if (e.formula.capacity() > 7) bytes += (e.formula.capacity() + 1) * sizeof(char16_t);
        bytes += fpMemory(e.program) - sizeof(FormulaProgram);
    }
    return bytes;
}

void StatementCache::place(uint64_t key, CachedStatement *e) {
    size_t i = start(key);
    while (slots_[i].key != kEmpty) i = (i + 1) & (slots_.size() - 1);
    slots_[i] = Slot{key, e};
}

void StatementCache::grow() {
    std::vector<Slot> old;
    old.swap(slots_);
    size_t size = old.empty() ? 64 : old.size() * 2;
    slots_.resize(size);
    for (const Slot &s : old)
        if (s.key != kEmpty) place(s.key, s.entry);
}

StatementCache *scCreate() {
    try {
        return new StatementCache();
    } catch (const std::bad_alloc &) {  // the run reads everything from the text
        return nullptr;
    }
}

namespace {
CacheSize gLastDestroyed;
}  // namespace

void scDestroy(StatementCache *cache) {
    if (!cache) return;
    gLastDestroyed = CacheSize{cache->entries(), cache->memory()};
    delete cache;
}

CacheSize scLastDestroyed() { return gLastDestroyed; }

CachedStatement *scAdd(RunContext &ctx, int32_t pos, CacheRole role) {
    if (!ctx.cache) return nullptr;
    try {
        return ctx.cache->add(scKey(ctx, pos, role));
    } catch (const std::bad_alloc &) {  // the run goes on reading from the text
        return nullptr;
    }
}

size_t scEntries(const StatementCache *cache) { return cache ? cache->entries() : 0; }

size_t scMemory(const StatementCache *cache) { return cache ? cache->memory() : 0; }

}  // namespace mx
