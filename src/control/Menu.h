// A popup menu as data: what the platform shows, and what it hands back.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Traces {

struct MenuItem {
    std::string_view Name;
    std::string_view Caption; ///< "-" is a separator
    bool Visible = true;
    bool Enabled = true;
    bool Checked = false;
    int Index = -1;                   ///< place in an array of items of the same name, -1 without one
    std::vector<MenuItem> Items = {}; ///< submenu
};

struct Menu {
    std::string_view Name;
    std::vector<MenuItem> Items;
};

/// The item that a user chose.
struct MenuChoice {
    std::string Name;
    int Index = -1;
};

/// The item of a choice, looked up in submenus too. Null when there is none, or when a user couldn't have
/// chosen it because it is hidden, disabled or a separator.
const MenuItem* FindChosen(const std::vector<MenuItem>& items, const MenuChoice& choice);

} // namespace Traces
