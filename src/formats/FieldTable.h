// A record's layout as a table: one row a field, with its place in the raw trace, its scale, its member and
// its parameter key. Four routes walk the table: decode, parameter lines, text load, upload encoding. Where
// a route departs from the table, the departure stands in that route.
#pragma once

#include "formats/CodeTable.h"
#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"
#include "formats/TraceText.h"
#include "formats/UploadFrame.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace Traces {

/// How a field stands in the raw trace: its width and signedness.
enum class Read : std::uint8_t { U32, I32, I16, U16, Byte, Chars };

/// A field of a record, to write or to read.
using FieldRef = std::variant<float*, double*, std::int32_t*, std::int16_t*, std::uint8_t*, std::string*>;
using FieldView = std::variant<const float*, const double*, const std::int32_t*, const std::int16_t*,
                               const std::uint8_t*, const std::string*>;

/// The way to one field of a record. Made by At.
template <class Record>
struct Member {
    FieldRef (*Of)(Record& record);
    FieldView (*In)(const Record& record);
    bool IsText; ///< the field is a text
};

namespace Detail {

template <auto Step, class Object>
constexpr auto& Follow(Object& object)
{
    if constexpr (std::is_member_object_pointer_v<decltype(Step)>)
        return object.*Step;
    else
        return object[Step];
}

template <auto First, auto... Rest>
struct Path {
    template <class Object>
    static constexpr auto& From(Object& object)
    {
        if constexpr (sizeof...(Rest) == 0)
            return Follow<First>(object);
        else
            return Path<Rest...>::From(Follow<First>(object));
    }
    template <class Record>
    static FieldRef Of(Record& record)
    {
        return &From(record);
    }
    template <class Record>
    static FieldView In(const Record& record)
    {
        return &From(record);
    }
    template <class Record>
    static constexpr bool IsText =
        std::is_same_v<std::remove_reference_t<decltype(From(std::declval<Record&>()))>, std::string>;
};

template <class T>
struct OwnerOf;
template <class Record, class T>
struct OwnerOf<T Record::*> {
    using Type = Record;
};

} // namespace Detail

/// At<&VNARecord::StartFreq> is the member, At<&VNARecord::FreqMarker, 2> the third element of an array,
/// At<&VNARecord::Segments, 2, &LimitSegment::StartX> a field of an element.
template <auto First, auto... Rest>
inline constexpr Member<typename Detail::OwnerOf<decltype(First)>::Type> At = {
    &Detail::Path<First, Rest...>::template Of<typename Detail::OwnerOf<decltype(First)>::Type>,
    &Detail::Path<First, Rest...>::template In<typename Detail::OwnerOf<decltype(First)>::Type>,
    Detail::Path<First, Rest...>::template IsText<typename Detail::OwnerOf<decltype(First)>::Type>};

/// How a field's raw number becomes its value: raw / Divisor + Then, or the text that Table has for that.
struct RawForm {
    int Offset = 0; ///< in the raw trace, from 1
    Read Reader = Read::U32;
    double Divisor = 1;
    double Then = 0;
    const CodeTable* Table = nullptr;
    int Width = 0; ///< of a character field
};

/// One row. The key ends in its colon; text loaders look it up without.
template <class Record>
struct Field {
    int Offset;
    Read Reader;
    double Divisor;
    Traces::Member<Record> Member;
    std::string_view Key;
    const CodeTable* Table = nullptr;
    double Then = 0;
    int Width = 0;

    constexpr RawForm Form() const { return {Offset, Reader, Divisor, Then, Table, Width}; }
    constexpr std::string_view LoadKey() const { return Key.substr(0, Key.size() - 1); }
};

/// Bytes that a reader takes.
constexpr int WidthOf(Read reader, int charsWidth)
{
    switch (reader) {
    case Read::U32:
    case Read::I32: return 4;
    case Read::I16:
    case Read::U16: return 2;
    case Read::Byte: return 1;
    case Read::Chars: return charsWidth;
    }
    return 0;
}

/// Whether a table's rows stand in raw order without sharing a byte, no key stands twice, and characters and
/// code tables go to texts. For static_assert; a layout that really shares bytes says so beside its table.
template <class Record, std::size_t Count>
constexpr bool FieldsFit(const std::array<Field<Record>, Count>& fields)
{
    for (std::size_t i = 0; i < Count; ++i) {
        if (i > 0 &&
            fields[i].Offset < fields[i - 1].Offset + WidthOf(fields[i - 1].Reader, fields[i - 1].Width))
            return false;
        if ((fields[i].Table != nullptr || fields[i].Reader == Read::Chars) && !fields[i].Member.IsText)
            return false;
        for (std::size_t k = 0; k < i; ++k)
            if (fields[k].Key == fields[i].Key)
                return false;
    }
    return true;
}

/// What the number of a trace file's line goes through on its way to a field.
enum class Through {
    FieldType, ///< the field's own type
    Float      ///< a 32-bit float first, which costs integers their digits beyond the seventh
};

/// The routes for one field. A value that can't be read, converted or kept by the field's type leaves the
/// field as it was.
/// @{
void DecodeField(const RawBuffer& buffer, const RawForm& form, FieldRef field);
void AddParamLine(ParameterList& lines, std::string_view key, FieldView field);
void LoadField(std::string_view value, FieldRef field, Through through);

/// LoadField from the line that begins with the key. A missing line leaves the field; one without a value
/// empties a text and leaves a number.
void LoadLine(const TraceText& text, std::string_view key, FieldRef field);
/// @}

/// Writes a record's field at a frame position, undoing the divisor.
/// @throws HostFault Overflow for a byte out of 0 to 255, Range for a position behind the frame's end.
void EncodeField(UploadFrame& frame, int position, const RawForm& form, FieldView field);

/// Writes what a trace file's line holds; a missing line counts as 0.
/// @throws HostFault as EncodeField.
void EncodeFieldText(UploadFrame& frame, int position, const RawForm& form, const TraceText& text,
                     std::string_view key);

template <class Record, std::size_t Count>
void DecodeFields(const RawBuffer& buffer, Record& record, const std::array<Field<Record>, Count>& fields)
{
    for (const auto& field : fields)
        DecodeField(buffer, field.Form(), field.Member.Of(record));
}

template <class Record, std::size_t Count>
void AddParamLines(ParameterList& lines, const Record& record, const std::array<Field<Record>, Count>& fields)
{
    for (const auto& field : fields)
        AddParamLine(lines, field.Key, field.Member.In(record));
}

template <class Record, std::size_t Count>
void LoadFields(const TraceText& text, Record& record, const std::array<Field<Record>, Count>& fields,
                Through through)
{
    for (const auto& field : fields)
        LoadField(text.ParamValue(field.LoadKey()), field.Member.Of(record), through);
}

/// `shift` is what a frame position lies below the raw offset.
template <class Record, std::size_t Count>
void EncodeFields(UploadFrame& frame, const Record& record, const std::array<Field<Record>, Count>& fields,
                  int shift)
{
    for (const auto& field : fields)
        EncodeField(frame, field.Offset - shift, field.Form(), field.Member.In(record));
}

template <class Record, std::size_t Count>
void EncodeFieldTexts(UploadFrame& frame, const TraceText& text,
                      const std::array<Field<Record>, Count>& fields, int shift)
{
    for (const auto& field : fields)
        EncodeFieldText(frame, field.Offset - shift, field.Form(), text, field.Key);
}

} // namespace Traces
