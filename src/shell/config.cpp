#include "shell/config.h"

#include <allegro5/allegro.h>

#include <array>
#include <cstdint>
#include <memory>
#include <sstream>
#include <system_error>

#include "shell/log.h"
#include "shell/replace_file.h"

namespace vandrel {
namespace {

struct ConfigDeleter {
    void operator()(ALLEGRO_CONFIG* config) const { al_destroy_config(config); }
};

std::unique_ptr<ALLEGRO_CONFIG, ConfigDeleter> theConfig;
std::string configPath;

struct FirstRunKey {
    const char* section;
    const char* key;
    int value;
};

// Written in this order, so a new file always reads the same.
constexpr std::array<FirstRunKey, 14> firstRunKeys{{
    {"video", "colourdepth", 32},
    {"video", "sync", 1},
    {"video", "width", 0},
    {"video", "height", 0},
    {"video", "windowed", 0},
    {"video", "updaterate", 60},
    {"sound", "soundEffectsVolume", 60},
    {"sound", "musicVolume", 100},
    {"controls", "menuControlMode", 2},
    {"controls", "xinputDpadEnabled", 1},
    {"other", "diagnostic", 0},
    {"other", "replayRecordingEnabled", 1},
    {"other", "showReplayTestOptions", 0},
    {"other", "alwaysShowFPS", 0},
}};

constexpr const char* accessibilitySection = "accessibility";

void store(const char* section, const char* key, const std::string& text) {
    al_set_config_value(theConfig.get(), section, key, text.c_str());
    try {
        replaceFile(configPath,
                    [](const std::string& beside) { return al_save_config_file(beside.c_str(), theConfig.get()); });
    } catch (const std::system_error& failure) {
        logText(std::string(failure.what()) + "\n");
    }
}

// The next integer of the stream; 0 when there is none, also when nothing is left at all.
int nextInt(std::istringstream& text) {
    int value = 0;
    text >> value;
    return value;
}

std::uint8_t nextByte(std::istringstream& text) {
    return static_cast<std::uint8_t>(nextInt(text));
}

}  // namespace

void openConfig(const std::string& path) {
    configPath = path;
    theConfig.reset(al_load_config_file(path.c_str()));
    if (theConfig == nullptr) {
        theConfig.reset(al_create_config());
        for (const FirstRunKey& entry : firstRunKeys) {
            setConfigInt(entry.section, entry.key, entry.value);
        }
    }
}

bool hasConfigKey(const char* section, const char* key) {
    return al_get_config_value(theConfig.get(), section, key) != nullptr;
}

int getConfigInt(const char* section, const char* key, int defaultValue) {
    const char* value = al_get_config_value(theConfig.get(), section, key);
    if (value == nullptr) {
        return defaultValue;
    }
    std::istringstream text(value);
    return nextInt(text);
}

bool getConfigBool(const char* section, const char* key, bool defaultValue) {
    return getConfigInt(section, key, defaultValue ? 1 : 0) != 0;
}

RGB getConfigColour(const char* section, const char* key, RGB defaultValue) {
    const char* value = al_get_config_value(theConfig.get(), section, key);
    if (value == nullptr) {
        return defaultValue;
    }
    std::istringstream text(value);
    RGB colour;
    colour.red = nextByte(text);
    colour.green = nextByte(text);
    colour.blue = nextByte(text);
    return colour;
}

void setConfigInt(const char* section, const char* key, int value) {
    std::ostringstream text;
    text << value;
    store(section, key, text.str());
}

void setConfigColour(const char* section, const char* key, RGB value) {
    std::ostringstream text;
    text << int{value.red} << ' ' << int{value.green} << ' ' << int{value.blue} << ' ';
    store(section, key, text.str());
}

void loadAccessibility(AccessibilitySettings& record) {
    const char* section = accessibilitySection;
    record.bgcol = getConfigInt(section, "bgcol", record.bgcol);
    record.ghostOpacity = getConfigInt(section, "ghostOpacity", record.ghostOpacity);
    record.recolourBombs = getConfigBool(section, "recolourBombs", record.recolourBombs);
    record.outlineEnabled = getConfigBool(section, "outlineEnabled", record.outlineEnabled);
    record.outlineCol = getConfigColour(section, "outlineCol", record.outlineCol);
    record.newBombCol = getConfigColour(section, "newBombCol", record.newBombCol);
    record.flashingEnabled = getConfigBool(section, "flashingEnabled", record.flashingEnabled);
}

void saveAccessibility(const AccessibilitySettings& record) {
    const char* section = accessibilitySection;
    setConfigInt(section, "bgcol", record.bgcol);
    setConfigInt(section, "ghostOpacity", record.ghostOpacity);
    setConfigInt(section, "recolourBombs", record.recolourBombs ? 1 : 0);
    setConfigInt(section, "outlineEnabled", record.outlineEnabled ? 1 : 0);
    setConfigColour(section, "outlineCol", record.outlineCol);
    setConfigColour(section, "newBombCol", record.newBombCol);
    setConfigInt(section, "flashingEnabled", record.flashingEnabled ? 1 : 0);
}

bool ConfigOptionWrapper<bool>::get() {
    if (!value) {
        value = getConfigBool(section, key, defaultValue.value());
    }
    return *value;
}

void ConfigOptionWrapper<bool>::toggle() {
    value = !get();
    setConfigInt(section, key, *value ? 1 : 0);
}

ConfigOptionWrapper<bool> showQuickStartOption{{}, false, "other", "showQuickStartOption", "Show Quick Start option"};
ConfigOptionWrapper<bool> catsEnabled{{}, true, "lootbox", "catsEnabled", "Cats"};
ConfigOptionWrapper<bool> dogsEnabled{{}, true, "lootbox", "dogsEnabled", "Dogs"};
ConfigOptionWrapper<bool> hamstersEnabled{{}, true, "lootbox", "hamstersEnabled", "Hamsters"};
ConfigOptionWrapper<bool> owlsEnabled{{}, true, "lootbox", "owlsEnabled", "Owls"};
ConfigOptionWrapper<bool> ferretsEnabled{{}, true, "lootbox", "ferretsEnabled", "Ferrets"};
ConfigOptionWrapper<bool> autoLoadAccessibility{
    {}, false, "accessibility", "autoLoad", "Auto Load accessibility settings"};

}  // namespace vandrel
