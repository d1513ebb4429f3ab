// The fixed-step loop inside which every screen but the match itself runs. A screen builds what it needs, hands its
// closures over and cleans up when the pump returns; screens nest.
#pragma once

#include <functional>

namespace vandrel {

// Calls `update` once per tick of the frame timer and `render`, which draws into the game bitmap, once the ticks that
// wait are gone or five updates have run; what then still waits is dropped, so the game slows down instead of falling
// ever further behind. Returns when `isDone`, asked at the top of every pass, is true. `onControllersChanged`, which
// may be empty, runs after the device list changed. The pump never sleeps. `logAverageFps` logs the frame rate at the
// end; `showTimings` draws the timing line also outside diagnostic mode. Throws std::bad_function_call for an empty
// closure among the first three; whatever a closure throws passes through.
void framePump(std::function<void()> update, std::function<void()> render, std::function<bool()> isDone,
               std::function<void()> onControllersChanged = {}, bool logAverageFps = false, bool showTimings = false);

// Empties the event queue, for the pump and for the match: counts ticks, brings the device list in step when
// controllers come or go and then calls `onControllersChanged`, calls `onCloseButton` for the window's close button,
// fits the picture into a window whose size somebody else has changed, and lets go of all keys when another window gets
// them. Either callback may be empty. All other events are dropped: keys are read directly.
void takeEvents(const std::function<void()>& onControllersChanged, const std::function<void()>& onCloseButton);

}  // namespace vandrel
