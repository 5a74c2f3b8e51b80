#include "control/Menu.h"

namespace Traces {

const MenuItem* FindChosen(const std::vector<MenuItem>& items, const MenuChoice& choice)
{
    for (const MenuItem& item : items) {
        if (!item.Visible || !item.Enabled)
            continue;
        if (item.Name == choice.Name && item.Index == choice.Index && item.Caption != "-" &&
            item.Items.empty())
            return &item;
        if (const MenuItem* found = FindChosen(item.Items, choice))
            return found;
    }
    return nullptr;
}

} // namespace Traces
