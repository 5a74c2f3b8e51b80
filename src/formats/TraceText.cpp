#include "formats/TraceText.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace Traces {

namespace {

constexpr std::size_t HashLength = 4;

/// Of the four characters at a place.
std::uint32_t HashOf(const char* characters)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, characters, HashLength);
    bits *= 2654435761U; // Knuth's multiplicative hashing
    return bits ^ bits >> 15;
}

/// Whether a text stands at a place of the whole one.
bool StandsAt(std::string_view whole, std::size_t place, std::string_view text)
{
    return whole.size() - place >= text.size() &&
           std::memcmp(whole.data() + place, text.data(), text.size()) == 0;
}

/// The places of line feeds, eight characters at a time: lines are short, and a search for each costs more.
template <class Action>
void ForEachLineFeed(std::string_view text, Action action)
{
    constexpr std::uint64_t ones = 0x0101010101010101, low = 0x7F7F7F7F7F7F7F7F;
    std::size_t at = 0;
    if constexpr (std::endian::native == std::endian::little)
        for (; at + sizeof(std::uint64_t) <= text.size(); at += sizeof(std::uint64_t)) {
            std::uint64_t characters = 0;
            std::memcpy(&characters, text.data() + at, sizeof characters);
            characters ^= ones * '\n';
            // The top bit of every byte that is zero now.
            for (std::uint64_t found = ~(((characters & low) + low) | characters | low); found != 0;
                 found &= found - 1)
                action(at + static_cast<std::size_t>(std::countr_zero(found)) / 8);
        }
    for (; at < text.size(); ++at)
        if (text[at] == '\n')
            action(at);
}

} // namespace

void TraceText::PlaceIndex::Build(std::string_view whole, std::vector<std::size_t> where,
                                  std::ptrdiff_t shift)
{
    places = std::move(where);
    next.resize(places.size());
    first.assign(std::bit_ceil(std::max<std::size_t>(places.size(), 16)), None);
    // Each chain grows at its front, so the last place goes first.
    for (std::size_t i = places.size(); i-- > 0;) {
        std::uint32_t& front = first[HashOf(whole.data() + places[i] + shift) & (first.size() - 1)];
        next[i] = std::exchange(front, static_cast<std::uint32_t>(i));
    }
}

template <class Test>
std::size_t TraceText::PlaceIndex::Find(std::string_view characters, Test test, std::size_t patience) const
{
    const std::uint32_t chain = HashOf(characters.data()) & static_cast<std::uint32_t>(first.size() - 1);
    for (std::uint32_t i = first[chain]; i != None; i = next[i]) {
        if (patience-- == 0)
            return Undecided;
        if (test(places[i]))
            return places[i];
    }
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
    constexpr std::size_t shortLine = 12;
    std::vector<std::size_t> starts;
    starts.reserve(text.size() / shortLine);
    ForEachLineFeed(text, [&](std::size_t at) {
        if (at + 1 + HashLength <= text.size())
            starts.push_back(at + 1);
    });
    lines.Build(text, std::move(starts), 0);
}

const TraceText::PlaceIndex& TraceText::Colons() const
{
    if (!colons.IsBuilt()) {
        std::vector<std::size_t> places;
        for (std::size_t at = text.find(':'); at != std::string_view::npos; at = text.find(':', at + 1))
            if (at >= HashLength)
                places.push_back(at);
        colons.Build(text, std::move(places), -static_cast<std::ptrdiff_t>(HashLength));
    }
    return colons;
}

std::size_t TraceText::FindLine(std::string_view key) const
{
    const auto begins = [&](std::size_t start) { return StandsAt(text, start, key); };
    // A key that many lines begin like is found through its colon: the keys of data points differ only there.
    if (key.size() > HashLength && key.back() == ':') {
        constexpr std::size_t patience = 8;
        const std::size_t line = lines.Find(key, begins, patience);
        if (line != PlaceIndex::Undecided)
            return line;
        const std::size_t before = key.size() - 1;
        const std::size_t colon = Colons().Find(key.substr(before - HashLength), [&](std::size_t at) {
            return at > before && text[at - before - 1] == '\n' && begins(at - before);
        });
        return colon == std::string_view::npos ? colon : colon - before;
    }
    if (key.size() >= HashLength)
        return lines.Find(key, begins);
    for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1))
        if (begins(at + 1))
            return at + 1;
    return std::string_view::npos;
}

std::size_t TraceText::FindAnywhere(std::string_view key) const
{
    if (key.size() <= HashLength || key.back() != ':')
        return text.find(key);
    const std::size_t before = key.size() - 1;
    const std::size_t colon = Colons().Find(key.substr(before - HashLength), [&](std::size_t at) {
        return at >= before && StandsAt(text, at - before, key);
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
