// The decoded record of a GPS receiver's long check, and the events of its run.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace Traces {

/// One event. The texts of its columns: code, two numbers of which the second has become words, a current in
/// mA, two times, and the line of the list.
struct GPSEvent {
    static constexpr std::size_t Code = 0, Number = 1, Status = 2, Current = 3, Time = 4, SecondTime = 5,
                                 Shown = 6;
    std::array<std::string, 7> Columns;
};

struct GPSTesterRecord {
    static constexpr std::int16_t MostEvents = 200;

    bool AutoSaveFlag = false;
    float AutoSaveCount = 0;
    float MeasurementDuration = 0, RemainingTime = 0; ///< seconds
    std::int16_t ViewMode = 0;
    std::int16_t MeasurementStatus = 0; ///< passed from 1 on
    std::int16_t GpsQuality = 0;
    float TrackedSatellites = 0;
    float CurrentDraw = 0; ///< mA
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::string GpsFixTime, LostGpsTime,
        UtcTime; ///< of 9 characters, as receivers tell the time: "102030.00"
    std::int16_t EventCount = 0;
    std::int16_t HundredEventList = 0;
};

} // namespace Traces
