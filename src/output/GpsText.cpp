#include "output/GpsText.h"

#include "control/Control.h"
#include "formats/FormatValue.h"

#include <cstdlib>

namespace Traces {

namespace {

std::string CoordinateText(std::int64_t coordinate, char positive, char negative)
{
    constexpr std::int64_t perDegree = 1'000'000;
    constexpr double perMinute = 10'000;
    const std::int64_t size = std::abs(coordinate);
    const std::string degrees = FormatValue(static_cast<std::int32_t>(size / perDegree), "#0");
    const std::string minutes = FormatValue(static_cast<double>(size % perDegree) / perMinute, "#0.000");
    // The degree sign is that of Windows-1252, as all texts inside.
    return std::string(1, coordinate < 0 ? negative : positive) + degrees + "\xB0 " + minutes + "'";
}

} // namespace

std::string GPSLocation(const Control& control)
{
    const ModeRow* row = CurrentRow(control);
    const GpsFix fix = row != nullptr && row->Position != nullptr ? row->Position(control) : GpsFix{};
    const bool known = fix.Latitude != -1 || fix.Longitude != -1;
    std::string text = "GPS Latitude:\t";
    text += known ? CoordinateText(fix.Latitude, 'N', 'S') : "N/A";
    text += "\r\nGPS Longitude:\t";
    text += known ? CoordinateText(fix.Longitude, 'E', 'W') : "N/A";
    text += "\r\nGPS Altitude:\t";
    text += known ? FormatValue(std::int32_t{fix.Altitude}, "#0 m") : "N/A";
    if (known && fix.UTCTime)
        text += "\r\nUTC Time:\t" + *fix.UTCTime;
    return text;
}

} // namespace Traces
