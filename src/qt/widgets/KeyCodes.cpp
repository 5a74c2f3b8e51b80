#include "qt/widgets/KeyCodes.h"

#include "control/PlotEvents.h"
#include "formats/Text.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace Traces {

namespace {

struct KeyRow {
    Qt::Key Key;
    int Code;
};

constexpr auto Keys = std::to_array<KeyRow>({
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},      {Qt::Key_Return, 13},   {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},      {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},    {Qt::Key_PageUp, 33},  {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},
    {Qt::Key_Home, 36},     {Qt::Key_Left, 37},    {Qt::Key_Up, 38},       {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},     {Qt::Key_Insert, 45},  {Qt::Key_Delete, 46},
});

} // namespace

int KeyCodeOf(const QKeyEvent& event)
{
    constexpr int firstFunctionKey = 112;
    const int key = event.key();
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z))
        return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return firstFunctionKey + key - Qt::Key_F1;
    const auto found = std::ranges::find(Keys, key, &KeyRow::Key);
    return found == Keys.end() ? 0 : found->Code;
}

int KeyAsciiOf(const QKeyEvent& event)
{
    const std::string text = AnsiFromUtf8(event.text().toStdString());
    return text.empty() ? 0 : static_cast<unsigned char>(text.front());
}

int ShiftOf(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) | (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

int ButtonsOf(Qt::MouseButtons buttons)
{
    return (buttons.testFlag(Qt::LeftButton) ? MouseButton::Left : 0) |
           (buttons.testFlag(Qt::RightButton) ? MouseButton::Right : 0) |
           (buttons.testFlag(Qt::MiddleButton) ? MouseButton::Middle : 0);
}

} // namespace Traces
