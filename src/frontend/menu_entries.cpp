#include "frontend/menu_entries.h"

#include <cstddef>
#include <utility>

#include "base/checked.h"

namespace vandrel {

CmdButtonBase::CmdButtonBase(int left, int top, int height, const RGB* colour)
    : x(left), y(top), bottom(top + height), textColour(colour) {}

CmdButtonText::CmdButtonText(int left, int top, int height, const RGB* colour, Label text)
    : CmdButtonBase(left, top, height, colour), label_(std::move(text)) {}

std::string CmdButtonText::text() const {
    if (const auto* const function = std::get_if<std::function<std::string()>>(&label_)) {
        return (*function)();
    }
    return std::get<std::string>(label_);
}

void CmdButtonText::setText(const std::string& text) {
    label_ = text;
}

CmdButtonInt::CmdButtonInt(int left, int top, int height, Label text, int* value, int minValue, int maxValue, int step)
    : CmdButtonText(left, top, height, nullptr, std::move(text)),
      value_(value),
      minValue_(minValue),
      maxValue_(maxValue),
      step_(step) {}

std::string CmdButtonInt::valueText() const {
    return std::to_string(*value_);
}

void CmdButtonInt::decrease() {
    *value_ = *value_ < minValue_ + step_ ? maxValue_ : *value_ - step_;
}

void CmdButtonInt::increase() {
    *value_ = *value_ > maxValue_ - step_ ? minValue_ : *value_ + step_;
}

CmdButtonEnum::CmdButtonEnum(int left, int top, int height, Label text, int* value, int minValue, int maxValue,
                             NameList names)
    : CmdButtonInt(left, top, height, std::move(text), value, minValue, maxValue, 1), names_(std::move(names)) {
    static_cast<void>(checkedAt(*names_, minValue));
    static_cast<void>(checkedAt(*names_, maxValue));
}

std::string CmdButtonEnum::valueText() const {
    const auto index = static_cast<std::size_t>(value());  // a negative value lands beyond every table
    return index < names_->size() ? (*names_)[index] : CmdButtonInt::valueText();
}

CmdButtonBool::CmdButtonBool(int left, int top, int height, Label text, bool* value, NameList names)
    : CmdButtonText(left, top, height, nullptr, std::move(text)), value_(value), names_(std::move(names)) {}

std::string CmdButtonBool::valueText() const {
    return checkedAt(*names_, *value_ ? 1 : 0);
}

void CmdButtonBool::press() {
    *value_ = !*value_;
}

void CmdButtonAction::run(const Action& action) {
    const Action kept = action;
    if (kept) {
        kept(*this);
    }
}

}  // namespace vandrel
