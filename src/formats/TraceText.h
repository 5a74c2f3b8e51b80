// The text of a trace file and the lookups in it. One pass over the text indexes its lines and its colons;
// every lookup then finds what a search through the whole text would find, without its cost.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Traces {

/// Fields of one line, split at the tabs. It keeps what it held when a lookup finds nothing.
struct LineFields {
    int UpperIndex = -1; ///< number of fields less one
    std::vector<std::string_view> Parts;
};

class TraceText {
public:
    /// Indexes the text, which must outlive this object.
    explicit TraceText(std::string_view whole);

    /// The value of the first line, from the second on, that begins with the key: what stands between the
    /// first tab behind it and the next carriage return. Empty when no line does. When no tab follows in
    /// the whole text, it is the text's first line.
    std::string_view ParamValue(std::string_view key) const;

    /// Whether a line, from the second on, begins with the key.
    bool HasLine(std::string_view key) const { return FindLine(key) != std::string_view::npos; }

    /// Splits the value of the first place, anywhere in the text, where the key stands. False, with the
    /// fields left as they were, when it stands nowhere.
    bool ParamFields(std::string_view key, LineFields& fields) const;

    /// `width` characters from `skip` behind the first character of the line's key, ending at a carriage
    /// return; empty when no line begins with the key.
    std::string_view ParamChars(std::string_view key, std::size_t skip, std::size_t width) const;

    /// 22 characters from 25 behind the place of the key followed by " =", anywhere in the text.
    std::string_view ParamSpectro(std::string_view key) const;

    std::string_view Whole() const { return text; }

private:
    /// Places in the text, chained by a hash of the four characters there, each chain in the text's order.
    class PlaceIndex {
    public:
        /// `shift` is where the hashed characters begin, from the place on; it never leads out of the text.
        void Build(std::string_view whole, std::vector<std::size_t> where, std::ptrdiff_t shift);

        /// The first place with these characters that the test accepts; npos when none.
        template <class Test>
        std::size_t Find(std::string_view characters, Test test, std::size_t patience = Undecided) const;

        /// What Find returns when it has tried as many places as its patience allows.
        static constexpr std::size_t Undecided = std::string_view::npos - 1;

        bool IsBuilt() const { return !first.empty(); }

    private:
        static constexpr std::uint32_t None = 0xFFFFFFFF;
        std::vector<std::size_t> places;
        std::vector<std::uint32_t> first; ///< number of a chain's first place, by hash
        std::vector<std::uint32_t> next;  ///< number of the next place in the chain, by the number of one
    };

    /// Where the next given character stands, with the last answer kept: lookups ask for the same tab or
    /// line end again and again, and a hostile file could have none for megabytes.
    class NextCharacter {
    public:
        explicit NextCharacter(char wanted) : character(wanted) {}
        std::size_t From(std::string_view whole, std::size_t place) const;

    private:
        char character;
        mutable std::size_t askedFrom = 1, answer = 0;
    };

    /// Built when the first key asks for it.
    const PlaceIndex& Colons() const;

    std::size_t FindLine(std::string_view key) const;
    std::size_t FindAnywhere(std::string_view key) const;

    std::string_view ValueBehind(std::size_t place) const;

    std::string_view text;
    PlaceIndex lines;          ///< line starts by their first characters
    mutable PlaceIndex colons; ///< colons by the characters in front of them
    NextCharacter nextTab{'\t'}, nextReturn{'\r'};
};

} // namespace Traces
