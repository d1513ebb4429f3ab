// The persistent settings: one text file of named sections, each with lines of a key and a value. Start-up opens it,
// the menus change it; match options are not stored here. Main thread only.
#pragma once

#include <optional>
#include <string>

#include "base/colour.h"
#include "shell/accessibility.h"

namespace vandrel {

// Loads the file, or, if it cannot be opened, starts an empty store and writes the first-run keys to it. Every later
// write goes to the same path.
void openConfig(const std::string& path);

// Whether the key stands in the file.
bool hasConfigKey(const char* section, const char* key);

// The first integer of the value, 0 if it begins with none; the default if the key is missing. Ranges are not checked.
int getConfigInt(const char* section, const char* key, int defaultValue);

// Whether getConfigInt is not 0.
bool getConfigBool(const char* section, const char* key, bool defaultValue);

// The first three integers of the value, each cut to a byte, 0 for those that are missing; the default for a missing
// key.
RGB getConfigColour(const char* section, const char* key, RGB defaultValue);

// Each stores the value and replaces the whole file at once. A save that fails leaves the file as it was and a line in
// the log: the run goes on with the value in memory.
void setConfigInt(const char* section, const char* key, int value);
void setConfigColour(const char* section, const char* key, RGB value);

// Reads or writes the seven keys of the record. A missing key leaves the record's field as it is.
void loadAccessibility(AccessibilitySettings& record);
void saveAccessibility(const AccessibilitySettings& record);

// An option bound to a key, read from the file at its first use. There are options of type bool only.
template <class T>
struct ConfigOptionWrapper;

template <>
struct ConfigOptionWrapper<bool> {
    std::optional<bool> value;  // empty until the first read
    std::optional<bool> defaultValue;
    const char* section;
    const char* key;
    const char* label;  // of its menu entry

    bool get();

    // Negates the option and stores it, whether or not the key was there.
    void toggle();
};

extern ConfigOptionWrapper<bool> showQuickStartOption;
extern ConfigOptionWrapper<bool> catsEnabled;
extern ConfigOptionWrapper<bool> dogsEnabled;
extern ConfigOptionWrapper<bool> hamstersEnabled;
extern ConfigOptionWrapper<bool> owlsEnabled;
extern ConfigOptionWrapper<bool> ferretsEnabled;
extern ConfigOptionWrapper<bool> autoLoadAccessibility;

}  // namespace vandrel
