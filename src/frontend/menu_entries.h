// The rows of a menu: a line of text each, with what happens when it is pressed or steered left and right. A row edits
// a value of the screen through a plain pointer, so the value outlives the menu. Coordinates are pixels in the menu's
// space before it is scrolled.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "base/colour.h"

namespace vandrel {

// What a row says: fixed, or asked anew in every frame.
using Label = std::variant<std::string, std::function<std::string()>>;

// The names of a row's values, by value. Rows of several menus share one list.
using NameList = std::shared_ptr<const std::vector<std::string>>;

// A list of the names in a table.
template <class Table>
NameList makeNameList(const Table& table) {
    return std::make_shared<const std::vector<std::string>>(std::begin(table), std::end(table));
}

class CmdButtonBase {
  public:
    static constexpr int entryWidth = 344;

    // `colour` is that of the text, null for the usual one. It is read at each drawing.
    CmdButtonBase(int left, int top, int height, const RGB* colour);
    CmdButtonBase(const CmdButtonBase&) = delete;
    CmdButtonBase& operator=(const CmdButtonBase&) = delete;
    virtual ~CmdButtonBase() = default;

    virtual std::string text() const = 0;
    // What follows the text behind a colon; empty for nothing.
    virtual std::string valueText() const { return {}; }
    virtual void press() = 0;
    // Left and right.
    virtual void decrease() {}
    virtual void increase() {}
    virtual void deleteKey() {}
    // Headings are never selected.
    virtual bool isHeading() const { return false; }
    // Replaces the label by a fixed text.
    virtual void setText(const std::string& text) = 0;

    int x;
    int y;
    int width = entryWidth;
    int bottom;
    const RGB* textColour;
};

class CmdButtonText : public CmdButtonBase {
  public:
    CmdButtonText(int left, int top, int height, const RGB* colour, Label text);

    std::string text() const override;
    void setText(const std::string& text) override;

  private:
    Label label_;
};

// A whole number from `minValue` to `maxValue`. A step beyond one end leads to the other end, not to a multiple of the
// step; pressing steps upwards. A value from outside the range, which a file may hold, stays until it is stepped.
class CmdButtonInt : public CmdButtonText {
  public:
    CmdButtonInt(int left, int top, int height, Label text, int* value, int minValue, int maxValue, int step);

    std::string valueText() const override;
    void press() override { increase(); }
    void decrease() override;
    void increase() override;

  protected:
    int value() const { return *value_; }

  private:
    int* value_;
    int minValue_;
    int maxValue_;
    int step_;
};

// A number that is shown by its name. A range beyond the names throws std::out_of_range; a value beyond them is shown
// as the number that it is.
class CmdButtonEnum final : public CmdButtonInt {
  public:
    CmdButtonEnum(int left, int top, int height, Label text, int* value, int minValue, int maxValue, NameList names);

    std::string valueText() const override;

  private:
    NameList names_;
};

// The first name is shown for false, the second for true.
class CmdButtonBool final : public CmdButtonText {
  public:
    CmdButtonBool(int left, int top, int height, Label text, bool* value, NameList names);

    std::string valueText() const override;
    void press() override;
    void decrease() override { press(); }
    void increase() override { press(); }

  private:
    bool* value_;
    NameList names_;
};

class CmdButtonHeading final : public CmdButtonText {
  public:
    using CmdButtonText::CmdButtonText;

    void press() override {}
    bool isHeading() const override { return true; }
};

// A row that does what its screen says. Each of the four may be empty, and may replace itself while it runs.
class CmdButtonAction final : public CmdButtonText {
  public:
    using Action = std::function<void(CmdButtonAction&)>;

    using CmdButtonText::CmdButtonText;

    void press() override { run(onPress); }
    void decrease() override { run(onLeft); }
    void increase() override { run(onRight); }
    void deleteKey() override { run(onDelete); }

    void setLeftAction(Action action) { onLeft = std::move(action); }
    void setRightAction(Action action) { onRight = std::move(action); }

    Action onPress;
    Action onDelete;
    Action onLeft;
    Action onRight;

  private:
    void run(const Action& action);
};

}  // namespace vandrel
