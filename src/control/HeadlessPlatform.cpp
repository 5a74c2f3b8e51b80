#include "control/HeadlessPlatform.h"

namespace Traces {

std::optional<std::string> HeadlessPlatform::NextAnswer()
{
    if (Answers.empty())
        return std::nullopt;
    std::string answer = std::move(Answers.front());
    Answers.pop_front();
    return answer;
}

std::optional<std::string> HeadlessPlatform::GetSaveFileNameA(const SaveDialog& dialog)
{
    SaveDialogs.push_back(dialog);
    return NextAnswer();
}

std::optional<std::string> HeadlessPlatform::InputBox(std::string_view prompt, std::string_view title,
                                                      std::string_view)
{
    Messages.push_back({std::string(title), std::string(prompt), MessageIcon::None});
    return NextAnswer();
}

std::optional<MenuChoice> HeadlessPlatform::PopupMenu(const Menu& menu)
{
    Menus.push_back(menu);
    if (Choices.empty())
        return std::nullopt;
    MenuChoice choice = std::move(Choices.front());
    Choices.pop_front();
    return choice;
}

void HeadlessPlatform::BeginProgress(std::string_view title, std::string_view)
{
    ProgressTitles.emplace_back(title);
    ++OpenProgressForms;
}

bool HeadlessPlatform::UpdateProgress(int percent)
{
    ProgressPercents.push_back(percent);
    DoEvents();
    return !InterruptAt || percent < *InterruptAt;
}

bool HeadlessPlatform::ClearClipboard()
{
    if (ClipboardFails)
        return false;
    ClipboardText.clear();
    ClipboardPicture.reset();
    return true;
}

bool HeadlessPlatform::SetClipboardText(std::string_view text)
{
    if (!ClipboardFails)
        ClipboardText = text;
    return !ClipboardFails;
}

bool HeadlessPlatform::SetClipboardPicture(const Picture& picture)
{
    if (!ClipboardFails)
        ClipboardPicture = picture;
    return !ClipboardFails;
}

bool HeadlessPlatform::PrintPicture(const Control&, const PagePlace& place)
{
    Pages.push_back(place);
    return true;
}

} // namespace Traces
