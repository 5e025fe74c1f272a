// ReadProfile, WriteProfile, DeleteProfileItem and DeleteProfileSection.
// Profile names are cut to 127 characters; an empty name in ReadProfile and
// WriteProfile selects the host's default profile.
#pragma once
#include <cstdint>

#include "engine/types.h"

namespace mx {

constexpr int32_t kProfileNameCapacity = 128;  // at most 127 characters

// The default profile of a host module: its file name without directory and
// extension, with ".ini" appended when that is shorter than 123 characters,
// into buf (capacity kProfileNameCapacity). No side effects.
void pfDefaultProfile(ModuleHandle host, char16_t *buf);

// buf = the value of item in section (empty when missing), cut to capacity.
// An empty or white section lists the section names, an empty or white item
// the entry names, separated by zero units. Returns 0.
int32_t pfReadProfile(ModuleHandle host, const char16_t *file, const char16_t *section,
                      const char16_t *item, char16_t *buf, int32_t capacity);

// Stores text as item of section. Returns 0.
int32_t pfWriteProfile(ModuleHandle host, const char16_t *file, const char16_t *section,
                       const char16_t *item, const char16_t *text);

// Delete an entry or a whole section of the file as named (no default
// profile). Return non-zero on success, 0 on failure.
int32_t pfDeleteProfileItem(const char16_t *file, const char16_t *section, const char16_t *item);
int32_t pfDeleteProfileSection(const char16_t *file, const char16_t *section);

}  // namespace mx
