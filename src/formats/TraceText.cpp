#include "formats/TraceText.h"

#include <algorithm>
#include <bit>

namespace Traces {

namespace {

constexpr std::size_t LineHashLength = 4;
constexpr std::size_t ColonHashLength = 2;

std::uint32_t HashOf(std::string_view characters)
{
    std::uint32_t hash = 2166136261U;
    for (const char c : characters)
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return hash ^ hash >> 15;
}

} // namespace

void TraceText::PlaceIndex::Reserve(std::size_t count)
{
    entries.reserve(count);
    chains.resize(std::bit_ceil(std::max<std::size_t>(count, 16)));
}

void TraceText::PlaceIndex::Add(std::uint32_t hash, std::size_t place)
{
    Chain& chain = chains[hash & (chains.size() - 1)];
    const auto index = static_cast<std::uint32_t>(entries.size());
    entries.push_back({place, None});
    if (chain.First == None)
        chain.First = index;
    else
        entries[chain.Last].Next = index;
    chain.Last = index;
}

template <class Test>
std::size_t TraceText::PlaceIndex::Find(std::uint32_t hash, Test test) const
{
    const Chain& chain = chains[hash & (chains.size() - 1)];
    for (std::uint32_t i = chain.First; i != None; i = entries[i].Next)
        if (test(entries[i].Place))
            return entries[i].Place;
    return std::string_view::npos;
}

std::size_t TraceText::NextCharacter::From(std::string_view whole, std::size_t place) const
{
    if (place >= askedFrom && place <= answer)
        return answer;
    const std::size_t found = std::min(whole.find(character, place), whole.size());
    askedFrom = place;
    answer = found;
    return found;
}

TraceText::TraceText(std::string_view whole) : text(whole)
{
    for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1))
        lineStarts.push_back(at + 1);
    lines.Reserve(lineStarts.size());
    for (const std::size_t start : lineStarts)
        if (start + LineHashLength <= text.size())
            lines.Add(HashOf(text.substr(start, LineHashLength)), start);

    colons.Reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), ':')));
    for (std::size_t at = text.find(':'); at != std::string_view::npos; at = text.find(':', at + 1))
        if (at >= ColonHashLength)
            colons.Add(HashOf(text.substr(at - ColonHashLength, ColonHashLength)), at);
}

std::size_t TraceText::FindLine(std::string_view key) const
{
    const auto begins = [&](std::size_t start) { return text.substr(start).starts_with(key); };
    // A key that ends in a colon is found through it: the many keys of data points differ only there.
    if (key.size() >= ColonHashLength && key.back() == ':') {
        const std::size_t before = key.size() - 1;
        const std::string withFeed = '\n' + std::string(key);
        const auto ends = [&](std::size_t colon) {
            return colon > before && text.substr(colon - before - 1).starts_with(withFeed);
        };
        const std::string_view lastTwo =
            std::string_view(withFeed).substr(key.size() - ColonHashLength, ColonHashLength);
        const std::size_t colon = colons.Find(HashOf(lastTwo), ends);
        return colon == std::string_view::npos ? colon : colon - before;
    }
    if (key.size() >= LineHashLength)
        return lines.Find(HashOf(key.substr(0, LineHashLength)), begins);
    const auto found = std::find_if(lineStarts.begin(), lineStarts.end(), begins);
    return found == lineStarts.end() ? std::string_view::npos : *found;
}

std::size_t TraceText::FindAnywhere(std::string_view key) const
{
    if (key.size() <= ColonHashLength || key.back() != ':')
        return text.find(key);
    const std::size_t before = key.size() - 1;
    const std::size_t colon =
        colons.Find(HashOf(key.substr(before - ColonHashLength, ColonHashLength)), [&](std::size_t at) {
            return at >= before && text.substr(at - before).starts_with(key);
        });
    return colon == std::string_view::npos ? colon : colon - before;
}

std::string_view TraceText::ValueBehind(std::size_t place) const
{
    const std::size_t tab = nextTab.From(text, place);
    const std::size_t begin = tab == text.size() ? 0 : tab + 1;
    return text.substr(begin, nextReturn.From(text, begin) - begin);
}

std::string_view TraceText::ParamValue(std::string_view key) const
{
    const std::size_t start = FindLine(key);
    return start == std::string_view::npos ? std::string_view() : ValueBehind(start);
}

bool TraceText::ParamFields(std::string_view key, LineFields& fields) const
{
    const std::size_t start = FindAnywhere(key);
    if (start == std::string_view::npos)
        return false;
    std::string_view value = ValueBehind(start);
    fields.Parts.clear();
    for (std::size_t tab = value.find('\t'); tab != std::string_view::npos; tab = value.find('\t')) {
        fields.Parts.push_back(value.substr(0, tab));
        value.remove_prefix(tab + 1);
    }
    fields.Parts.push_back(value);
    fields.UpperIndex = static_cast<int>(fields.Parts.size()) - 1;
    return true;
}

std::string_view TraceText::ParamChars(std::string_view key, std::size_t skip, std::size_t width) const
{
    const std::size_t start = FindLine(key);
    if (start == std::string_view::npos || start + skip >= text.size())
        return {};
    const std::string_view taken = text.substr(start + skip, width);
    return taken.substr(0, taken.find('\r'));
}

std::string_view TraceText::ParamSpectro(std::string_view key) const
{
    constexpr std::size_t skip = 25;
    constexpr std::size_t width = 22;
    const std::size_t place = text.find(std::string(key) + " =");
    if (place == std::string_view::npos || place + skip >= text.size())
        return {};
    return text.substr(place + skip, width);
}

} // namespace Traces
