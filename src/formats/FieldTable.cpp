#include "formats/FieldTable.h"

#include "formats/Numbers.h"
#include "formats/Text.h"

#include <optional>

namespace Traces {

namespace {

/// The number at the form's place, whatever its width.
std::optional<double> ReadNumber(const RawBuffer& buffer, const RawForm& form)
{
    const auto number = [](auto value) { return value ? std::optional<double>(*value) : std::nullopt; };
    switch (form.Reader) {
    case Read::U32: return ReadU32(buffer, form.Offset);
    case Read::I32: return number(ReadI32(buffer, form.Offset));
    case Read::I16: return number(ReadI16(buffer, form.Offset));
    case Read::U16: return number(ReadU16(buffer, form.Offset));
    case Read::Byte: return number(ReadByte(buffer, form.Offset));
    case Read::Chars: break;
    }
    return std::nullopt;
}

template <class T>
void StoreNumber(T& field, double value)
{
    if constexpr (std::is_floating_point_v<T>)
        field = static_cast<T>(value);
    else if (const auto whole = RoundTo<T>(value))
        field = *whole;
}

void StoreNumber(std::string& field, double value)
{
    field = NumberText(value);
}

double NumberIn(FieldView field)
{
    return std::visit(
        [](const auto* value) {
            if constexpr (std::is_same_v<decltype(value), const std::string*>)
                return ValueOf(*value);
            else
                return static_cast<double>(*value);
        },
        field);
}

/// Puts a number as wide as the form's reader reads it.
void PutNumber(UploadFrame& frame, int position, const RawForm& form, double value)
{
    const double scale = form.Divisor;
    const double offset = -form.Then * form.Divisor;
    switch (form.Reader) {
    case Read::U32:
    case Read::I32: frame.Put(position, PutU32(value, scale, offset)); break;
    case Read::I16:
    case Read::U16: frame.Put(position, PutI16(value * scale + offset)); break;
    case Read::Byte: frame.Put(position, PutByte(value * scale + offset)); break;
    case Read::Chars: break;
    }
}

} // namespace

void DecodeField(const RawBuffer& buffer, const RawForm& form, FieldRef field)
{
    if (form.Reader == Read::Chars) {
        if (const auto text = ReadChars(buffer, form.Offset, form.Width))
            *std::get<std::string*>(field) = FixedText(*text, static_cast<std::size_t>(form.Width));
        return;
    }
    const auto raw = ReadNumber(buffer, form);
    if (!raw)
        return;
    const double number = *raw / form.Divisor + form.Then;
    if (form.Table) {
        if (const auto code = RoundTo<std::int32_t>(number))
            *std::get<std::string*>(field) = form.Table->Text(*code);
        return;
    }
    std::visit([&](auto* value) { StoreNumber(*value, number); }, field);
}

void AddParamLine(ParameterList& lines, std::string_view key, FieldView field)
{
    std::visit(
        [&](const auto* value) {
            if constexpr (std::is_same_v<decltype(value), const std::string*>)
                lines.AddLine(key, *value);
            else
                lines.AddLine(key, NumberText(*value));
        },
        field);
}

void LoadField(std::string_view value, FieldRef field, Through through)
{
    const auto load = [&](auto* target) {
        using T = std::remove_pointer_t<decltype(target)>;
        if constexpr (std::is_same_v<T, std::string>) {
            *target = value;
        } else if (through == Through::Float) {
            if (const auto number = StrictNumber<float>(value))
                StoreNumber(*target, *number);
        } else if (const auto number = StrictNumber<T>(value)) {
            *target = *number;
        }
    };
    std::visit(load, field);
}

void LoadLine(const TraceText& text, std::string_view key, FieldRef field)
{
    if (text.HasLine(key))
        LoadField(text.ParamValue(key), field, Through::FieldType);
}

void EncodeField(UploadFrame& frame, int position, const RawForm& form, FieldView field)
{
    if (form.Reader == Read::Chars) {
        const auto width = static_cast<std::size_t>(form.Width);
        frame.Put(position, FixedText(*std::get<const std::string*>(field), width));
    } else if (form.Table) {
        PutNumber(frame, position, form, form.Table->Code(*std::get<const std::string*>(field)));
    } else {
        PutNumber(frame, position, form, NumberIn(field));
    }
}

void EncodeFieldText(UploadFrame& frame, int position, const RawForm& form, const TraceText& text,
                     std::string_view key)
{
    const std::string_view value = text.ParamValue(key);
    if (form.Reader == Read::Chars)
        frame.Put(position, FixedText(value, static_cast<std::size_t>(form.Width)));
    else if (form.Table)
        PutNumber(frame, position, form, form.Table->Code(value));
    else
        PutNumber(frame, position, form, ValueOf(value));
}

} // namespace Traces
