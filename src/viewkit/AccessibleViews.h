#pragma once

namespace velmora {

/// From now on assistive programs know a window as a frame that also holds the menu open in it, and
/// a plain view with an accessible name as a group of controls. Call it before any view is shown.
void installAccessibleViews();

} // namespace velmora
