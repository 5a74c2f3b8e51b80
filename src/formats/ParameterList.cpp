#include "formats/ParameterList.h"

namespace Traces {

namespace {
constexpr std::string_view LineBreak = "\r\n";
}

void ParameterList::Clear()
{
    text.clear();
    ends.clear();
}

void ParameterList::AddItem(std::string_view item)
{
    text += item;
    EndLine();
}

void ParameterList::AddLine(std::string_view key, std::string_view value)
{
    text += key;
    text += '\t';
    text += value;
    EndLine();
}

void ParameterList::EndLine()
{
    ends.push_back(text.size());
    text += LineBreak;
}

std::string_view ParameterList::List(std::size_t index) const
{
    const std::size_t begin = index == 0 ? 0 : ends[index - 1] + LineBreak.size();
    return std::string_view(text).substr(begin, ends[index] - begin);
}

} // namespace Traces
