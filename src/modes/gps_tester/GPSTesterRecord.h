// The decoded record of a GPS receiver's long check, and the events of its run.
#pragma once

#include <cstdint>
#include <string>

namespace Traces {

/// One event of the run, in texts; all empty for one that a file doesn't tell.
struct GPSEvent {
    std::string Code, Number;
    std::string Status;     ///< words: of the fix, or how many satellites are tracked
    std::string Current;    ///< mA
    std::string Time;       ///< "102030"
    std::string SecondTime; ///< day, month and year in front of a time

    /// The line of the list: "102030 - Tracked 7 satellites (85mA)".
    std::string Shown() const { return Time + " - " + Status + " (" + Current + "mA)"; }
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
