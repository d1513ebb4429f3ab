// A list-style screen: a scrolling column of rows with one of them highlighted, driven by the keyboard and by the
// controllers that the menu control mode admits. A screen builds one, calls `update` once per update and `draw` once
// per frame, and lets it go.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "frontend/menu_entries.h"
#include "presentation/bitmap_wrapper.h"
#include "presentation/font_id.h"

namespace vandrel {

template <class T>
struct ConfigOptionWrapper;

// Where the rows stand, in pixels. Fonts go by name, so these hold for as long as the process, whatever becomes of the
// display and the fonts made for it.
struct VandrelMenuLayoutOptions {
    FontId font = FontId::Font30;
    int top = 300;  // of the first row, and of what is painted
    int rowStep = 48;
    int rowHeight = 51;        // may exceed the step: the boxes then overlap
    int textMode = 1;          // anything else leaves the texts away
    int horizontalRepeat = 0;  // updates between two steps to the left or right, if it is used
    bool useHorizontalRepeat = false;
    bool includeHeldController = false;  // for screens during a match
};

inline constexpr VandrelMenuLayoutOptions layoutDefault{};
inline constexpr VandrelMenuLayoutOptions layoutSmall{.font = FontId::Font24, .rowStep = 40};
inline constexpr VandrelMenuLayoutOptions layoutScreenMode{.top = 200, .rowStep = 44};
inline constexpr VandrelMenuLayoutOptions layoutColour{.horizontalRepeat = 2, .useHorizontalRepeat = true};
inline constexpr VandrelMenuLayoutOptions layoutPause{.top = 100, .includeHeldController = true};
inline constexpr VandrelMenuLayoutOptions layoutPauseSmall{
    .font = FontId::Font24, .top = 20, .includeHeldController = true};

// The left edge of the rows of most screens on a screen so wide, and how far to their left headings begin. Pixels.
constexpr int usualRowX(int screenWidth) {
    constexpr int leftOfMiddle = 200;
    return screenWidth / 2 - leftOfMiddle;
}
inline constexpr int headingsLeftOfRows = 20;

// How a held direction gets faster. Shared by all menus, so the pace carries over from one to the next until every
// direction is let go.
extern int keyRepeatDelay;  // updates between two steps
extern int keyRepeatCount;  // steps made at a pace that can still rise

class VandrelMenu {
  public:
    // `options` outlives the menu. `onClose` runs when the menu goes.
    explicit VandrelMenu(const VandrelMenuLayoutOptions* options, std::function<void()> onClose = {});
    VandrelMenu(const VandrelMenu&) = delete;
    VandrelMenu& operator=(const VandrelMenu&) = delete;
    ~VandrelMenu();

    // Each adds a row below the last, its left edge at `x`.
    void addHeading(int x, std::string text);
    // Both functions may be empty. `colour` is that of the text, null for the usual one; it outlives the menu.
    std::shared_ptr<CmdButtonAction> addAction(int x, Label label, std::function<void()> press,
                                               CmdButtonAction::Action onDelete = {}, const RGB* colour = nullptr);
    std::shared_ptr<CmdButtonAction> addAction(int x, Label label, CmdButtonAction::Action press,
                                               CmdButtonAction::Action onDelete = {}, const RGB* colour = nullptr);
    void addBool(int x, Label text, bool* value, NameList names);
    void addInt(int x, Label text, int* value, int minValue, int maxValue, int step);
    void addEnum(int x, Label text, int* value, int minValue, int maxValue, NameList names);
    // Leaves half a row free.
    void addGap();

    // One step of input. `bottomLimit` is the last visible pixel row: the height of what is drawn to, minus 1.
    void update(int bottomLimit);
    void draw(const BitmapWrapper& target) const;

    const std::vector<std::shared_ptr<CmdButtonBase>>& entries() const { return entries_; }
    int selected() const { return selected_; }  // an index
    int scrollY() const { return scrollY_; }    // added to every row's y when it is drawn
    bool moreAbove() const { return moreAbove_; }
    bool moreBelow() const { return moreBelow_; }

  private:
    template <class Entry, class... Arguments>
    std::shared_ptr<Entry> add(int x, Arguments&&... arguments);
    CmdButtonBase& selectedEntry() const { return *entries_[static_cast<std::size_t>(selected_)]; }
    void moveSelection(int delta);
    void scroll(int bottomLimit);
    void steer();
    void takeKeys();
    void drawEntry(const BitmapWrapper& target, const CmdButtonBase& entry, bool highlighted) const;
    void drawArrows(const BitmapWrapper& target) const;

    const VandrelMenuLayoutOptions* options_;
    int nextY_;               // of the row that is added next
    int repeatCounter_ = 10;  // updates until input is read again
    int scrollY_ = 0;
    int selected_ = 0;
    std::vector<std::shared_ptr<CmdButtonBase>> entries_;
    std::function<void()> onClose_;
    bool moreAbove_ = false;
    bool moreBelow_ = false;
};

// Adds a row for an option of the configuration: its label, and "On" or "Off". Pressing it flips and stores the option.
// `option` outlives the menu.
void addEntry(ConfigOptionWrapper<bool>& option, VandrelMenu& menu, int x);

}  // namespace vandrel
