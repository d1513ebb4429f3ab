#include "frontend/vandrel_menu.h"

#include <allegro5/keycodes.h>

#include <utility>

#include "input/keyboard.h"
#include "input/menu_input.h"
#include "presentation/play_sample.h"
#include "shell/config.h"

namespace vandrel {

namespace {

constexpr int slowestRepeat = 10;  // updates
constexpr int fastestRepeat = 2;
constexpr int stepsBetweenPaces = 20;
constexpr int doubleSpeed = 2 * normalSampleSpeed;

// -1, 0 or 1. The negative key goes first.
int heldDirection(int negativeKey, int positiveKey, bool includeHeldController) {
    if (menuDirectionDown(negativeKey, menuControlMode, includeHeldController)) {
        return -1;
    }
    return menuDirectionDown(positiveKey, menuControlMode, includeHeldController) ? 1 : 0;
}

void speedUpRepeat() {
    if (keyRepeatDelay > fastestRepeat && ++keyRepeatCount % stepsBetweenPaces == 0) {
        --keyRepeatDelay;
    }
}

}  // namespace

int keyRepeatDelay = slowestRepeat;
int keyRepeatCount = 0;

VandrelMenu::VandrelMenu(const VandrelMenuLayoutOptions* options, std::function<void()> onClose)
    : options_(options), nextY_(options->top), onClose_(std::move(onClose)) {}

VandrelMenu::~VandrelMenu() {
    if (onClose_) {
        onClose_();
    }
}

template <class Entry, class... Arguments>
std::shared_ptr<Entry> VandrelMenu::add(int x, Arguments&&... arguments) {
    auto entry = std::make_shared<Entry>(x, nextY_, options_->rowHeight, std::forward<Arguments>(arguments)...);
    entries_.push_back(entry);
    nextY_ += options_->rowStep;
    return entry;
}

void VandrelMenu::addHeading(int x, std::string text) {
    add<CmdButtonHeading>(x, nullptr, std::move(text));
}

std::shared_ptr<CmdButtonAction> VandrelMenu::addAction(int x, Label label, std::function<void()> press,
                                                        CmdButtonAction::Action onDelete, const RGB* colour) {
    CmdButtonAction::Action action;
    if (press) {
        action = [press = std::move(press)](CmdButtonAction&) { press(); };
    }
    return addAction(x, std::move(label), std::move(action), std::move(onDelete), colour);
}

std::shared_ptr<CmdButtonAction> VandrelMenu::addAction(int x, Label label, CmdButtonAction::Action press,
                                                        CmdButtonAction::Action onDelete, const RGB* colour) {
    auto entry = add<CmdButtonAction>(x, colour, std::move(label));
    entry->onPress = std::move(press);
    entry->onDelete = std::move(onDelete);
    return entry;
}

void VandrelMenu::addBool(int x, Label text, bool* value, NameList names) {
    add<CmdButtonBool>(x, std::move(text), value, std::move(names));
}

void VandrelMenu::addInt(int x, Label text, int* value, int minValue, int maxValue, int step) {
    add<CmdButtonInt>(x, std::move(text), value, minValue, maxValue, step);
}

void VandrelMenu::addEnum(int x, Label text, int* value, int minValue, int maxValue, NameList names) {
    add<CmdButtonEnum>(x, std::move(text), value, minValue, maxValue, std::move(names));
}

void VandrelMenu::addGap() {
    nextY_ += options_->rowStep / 2;
}

void VandrelMenu::moveSelection(int delta) {
    const int count = static_cast<int>(entries_.size());
    // Where every row is a heading, one full round leads back to the first.
    for (int tried = 0; tried < count; ++tried) {
        selected_ = (selected_ + delta + count) % count;
        if (!selectedEntry().isHeading()) {
            return;
        }
    }
}

void VandrelMenu::update(int bottomLimit) {
    if (entries_.empty()) {
        return;
    }
    if (selectedEntry().isHeading()) {
        moveSelection(1);
    }
    scroll(bottomLimit);
    if (repeatCounter_ > 0) {
        --repeatCounter_;
    }
    if (repeatCounter_ != 0) {
        return;
    }
    steer();
    takeKeys();
}

void VandrelMenu::scroll(int bottomLimit) {
    const CmdButtonBase& shown = selectedEntry();
    if (shown.bottom + scrollY_ > bottomLimit) {
        scrollY_ = bottomLimit - shown.bottom;
    } else if (shown.y + scrollY_ < options_->top) {
        scrollY_ = options_->top - shown.y;
    }
    moreAbove_ = false;
    moreBelow_ = false;
    for (const auto& entry : entries_) {
        const int bottom = entry->bottom + scrollY_;
        moreBelow_ = moreBelow_ || bottom > bottomLimit;
        moreAbove_ = moreAbove_ || bottom < options_->top;
    }
}

// A move to another row wins over a step within the row.
void VandrelMenu::steer() {
    const int horizontal = heldDirection(ALLEGRO_KEY_LEFT, ALLEGRO_KEY_RIGHT, options_->includeHeldController);
    const int vertical = heldDirection(ALLEGRO_KEY_UP, ALLEGRO_KEY_DOWN, options_->includeHeldController);
    if (vertical != 0) {
        moveSelection(vertical);
        repeatCounter_ = keyRepeatDelay;
    } else if (horizontal != 0) {
        if (horizontal < 0) {
            selectedEntry().decrease();
        } else {
            selectedEntry().increase();
        }
        repeatCounter_ = options_->useHorizontalRepeat ? options_->horizontalRepeat : keyRepeatDelay;
    } else {
        keyRepeatDelay = slowestRepeat;
        keyRepeatCount = 0;
        return;
    }
    speedUpRepeat();
    playSample(SampleIds::Slide, fullVolume, centrePan, vertical != 0 ? normalSampleSpeed : doubleSpeed);
}

void VandrelMenu::takeKeys() {
    if (menuKeyPressed(ALLEGRO_KEY_ENTER, menuControlMode, options_->includeHeldController)) {
        playSample(SampleIds::Slide, fullVolume, centrePan, doubleSpeed);
        selectedEntry().press();
        repeatCounter_ = slowestRepeat;
    }
    if (wasKeyReleased(ALLEGRO_KEY_DELETE)) {
        playSample(SampleIds::Slide, fullVolume, centrePan, doubleSpeed);
        selectedEntry().deleteKey();
        repeatCounter_ = slowestRepeat;
    }
}

void addEntry(ConfigOptionWrapper<bool>& option, VandrelMenu& menu, int x) {
    menu.addAction(
        x, [&option] { return std::string(option.label) + ": " + (option.get() ? "On" : "Off"); },
        [&option] { option.toggle(); });
}

}  // namespace vandrel
