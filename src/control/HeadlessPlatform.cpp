#include "control/HeadlessPlatform.h"

namespace Traces {

std::optional<std::string> HeadlessPlatform::GetSaveFileNameA(const SaveDialog& dialog)
{
    SaveDialogs.push_back(dialog);
    if (Answers.empty())
        return std::nullopt;
    std::string answer = Answers.front();
    Answers.pop_front();
    return answer;
}

} // namespace Traces
