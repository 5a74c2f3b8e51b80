#include "VnaRecord.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Traces::Samples {

namespace {

constexpr std::size_t FirstPoint = 325;
constexpr std::size_t PointWidth = 8;
constexpr double MagnitudeUnit = 10'000; // Raw magnitude of a full reflection.

Bytes WriteRecord(const VnaSettings& settings, const std::vector<Complex>& points, double& nearestTie)
{
    RawWriter raw;
    CommonHead head = settings.Head;
    head.Mode = static_cast<std::uint8_t>(settings.Mode);
    head.DataPoints = static_cast<std::int16_t>(points.size());
    raw.PutHead(head);
    raw.PutU32(57, settings.StartHz);
    raw.PutU32(61, settings.StopHz);
    raw.PutU32(65, settings.StepHz);
    raw.PutU32(69, settings.ScaleTop);
    raw.PutU32(73, settings.ScaleBottom);
    raw.PutI32(89, settings.SingleLimit);
    for (std::size_t s = 0; s < settings.LimitSegments.size(); ++s) {
        const LimitSegment& segment = settings.LimitSegments[s];
        raw.PutByte(93 + 14 * s, segment.Seg);
        raw.PutByte(94 + 14 * s, segment.SegStatus);
        raw.PutU32(95 + 14 * s, segment.StartX);
        raw.PutI16(99 + 14 * s, segment.StartY);
        raw.PutU32(101 + 14 * s, segment.EndX);
        raw.PutI16(105 + 14 * s, segment.EndY);
    }
    raw.PutU32(163, settings.StartMillimetres);
    raw.PutU32(167, settings.StopMillimetres);
    const std::size_t markers = IsDistanceMode(settings.Mode) ? 171 : 77;
    for (std::size_t k = 0; k < settings.Markers.size(); ++k)
        raw.PutI16(markers + 2 * k, settings.Markers[k]);
    raw.PutU32(183, settings.RelPropVelocity);
    raw.PutU32(187, settings.CableLoss);
    raw.PutRounded(191, settings.AveCableLoss * 1000);
    for (std::size_t k = 0; k < settings.StatusBytes.size(); ++k)
        raw.PutByte(195 + k, settings.StatusBytes[k]);
    raw.PutI16(200, settings.SignalStd);
    raw.PutI32(202, settings.Gps.Latitude);
    raw.PutI32(206, settings.Gps.Longitude);
    raw.PutI16(210, settings.Gps.Altitude);
    for (std::size_t i = 0; i < points.size(); ++i) {
        raw.PutRounded(FirstPoint + PointWidth * i, std::abs(points[i]) * MagnitudeUnit);
        raw.PutRounded(FirstPoint + PointWidth * i + 4, std::arg(points[i]) * 1800 / std::numbers::pi);
    }
    nearestTie = raw.NearestTie();
    return raw.Finish(FirstPoint - 1 + PointWidth * points.size());
}

// The displayed value of a raw magnitude; against distance the reflection itself.
double DisplayValue(VnaMode mode, std::int32_t raw)
{
    const double x = raw / MagnitudeUnit;
    switch (mode) {
    case VnaMode::ReturnLoss: return raw == 0 ? -60 : std::max(-60.0, 20 * std::log10(x));
    case VnaMode::Swr: return x < 1 ? (1 + x) / (1 - x) : 65;
    case VnaMode::CableLoss: return raw == 0 ? 0 : std::max(-60.0, 10 * std::log10(x));
    case VnaMode::ReturnLossDistance:
    case VnaMode::SwrDistance: break;
    }
    return x;
}

struct Reader {
    const Bytes& Raw;
    VnaMode Mode;
    std::size_t Count;

    std::int32_t Magnitude(std::size_t i) const { return RawI32(Raw, FirstPoint + PointWidth * i); }
    double Value(std::size_t i) const { return DisplayValue(Mode, Magnitude(i)); }
    double Phase(std::size_t i) const { return RawI32(Raw, FirstPoint + PointWidth * i + 4) / 10.0; }

    // Where point i stands, in MHz or millimetres.
    std::string Place(std::size_t i) const
    {
        const bool distance = IsDistanceMode(Mode);
        const double start = distance ? RawU32(Raw, 163) : RawU32(Raw, 57) / 1e6;
        const double stop = distance ? RawU32(Raw, 167) : RawU32(Raw, 61) / 1e6;
        const double x = start + (stop - start) * static_cast<double>(i) / static_cast<double>(Count - 1);
        return Plain(x) + (distance ? " mm" : " MHz");
    }

    std::string ValueText(std::size_t i) const
    {
        const double value = Value(i);
        return Fixed(value, 4) + (Mode == VnaMode::ReturnLoss || Mode == VnaMode::CableLoss ? " dB" : "");
    }

    std::string PointText(std::size_t i) const
    {
        return ValueText(i) + " at point " + std::to_string(i) + ", " + Place(i) + ", raw " +
               std::to_string(Magnitude(i)) + ", phase " + Plain(Phase(i));
    }
};

std::string NumberList(const Bytes& raw, std::size_t offset, std::size_t count)
{
    std::string text;
    for (std::size_t k = 0; k < count; ++k)
        text += (k ? ", " : "") + std::to_string(RawI16(raw, offset + 2 * k));
    return text;
}

std::vector<std::string> ReadFacts(const Bytes& raw, VnaMode mode)
{
    const Reader reader{raw, mode, static_cast<std::size_t>(RawI16(raw, 55))};
    std::size_t low = 0;
    std::size_t high = 0;
    for (std::size_t i = 1; i < reader.Count; ++i) {
        if (reader.Magnitude(i) < reader.Magnitude(low))
            low = i;
        if (reader.Magnitude(i) > reader.Magnitude(high))
            high = i;
    }

    // A larger reflection is a higher return loss in dB and a higher SWR.
    std::vector<std::string> facts{"Sweep " + Plain(RawU32(raw, 57) / 1e6) + " to " +
                                   Plain(RawU32(raw, 61) / 1e6) + " MHz, step " +
                                   Plain(RawU32(raw, 65) / 1e6) + " MHz."};
    facts.push_back("Lowest " + reader.PointText(low) + ".");
    facts.push_back("Highest " + reader.PointText(high) + ".");
    facts.push_back("First " + reader.PointText(0) + ".");
    facts.push_back("Last " + reader.PointText(reader.Count - 1) + ".");
    if (IsDistanceMode(mode)) {
        facts.push_back("Distance " + std::to_string(RawU32(raw, 163)) + " to " +
                        std::to_string(RawU32(raw, 167)) + " mm, markers " + NumberList(raw, 171, 6) + ".");
        for (std::size_t k = 1; k < 6 && RawI16(raw, 171 + 2 * k) != 0; ++k)
            facts.push_back("Marker " + std::to_string(k + 1) + ": " +
                            reader.PointText(static_cast<std::size_t>(RawI16(raw, 171 + 2 * k))) + ".");
    } else {
        facts.push_back("Markers " + NumberList(raw, 77, 6) + ".");
    }
    facts.push_back("Average cable loss " + Plain(RawU32(raw, 191) / 1000.0) + " dB, signal standard code " +
                    std::to_string(RawI16(raw, 200)) + ", GPS " + std::to_string(RawI32(raw, 202)) + ", " +
                    std::to_string(RawI32(raw, 206)) + ", " + std::to_string(RawI16(raw, 210)) + ".");
    return facts;
}

} // namespace

bool IsDistanceMode(VnaMode mode)
{
    return mode == VnaMode::ReturnLossDistance || mode == VnaMode::SwrDistance;
}

Sample VnaSample(const std::string& fileName, const std::string& shows, const VnaSettings& settings,
                 const std::vector<Complex>& points)
{
    Sample sample;
    sample.FileName = fileName;
    sample.Shows = shows;
    sample.Raw = WriteRecord(settings, points, sample.NearestTie);
    sample.Facts = ReadFacts(sample.Raw, settings.Mode);
    return sample;
}

std::int16_t DeepestPoint(const std::vector<Complex>& points)
{
    // What counts is the rounded magnitude that the trace carries.
    const auto smaller = [](Complex a, Complex b) {
        return std::lround(std::abs(a) * MagnitudeUnit) < std::lround(std::abs(b) * MagnitudeUnit);
    };
    return static_cast<std::int16_t>(std::min_element(points.begin(), points.end(), smaller) -
                                     points.begin());
}

std::vector<std::int16_t> Peaks(const std::vector<Complex>& points, double least, std::size_t apart)
{
    std::vector<std::int16_t> peaks;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double height = std::abs(points[i]);
        bool highest = height > least;
        const std::size_t end = std::min(points.size(), i + apart + 1);
        for (std::size_t j = i > apart ? i - apart : 0; j < end; ++j)
            highest = highest && std::abs(points[j]) <= height;
        if (highest)
            peaks.push_back(static_cast<std::int16_t>(i));
    }
    std::sort(peaks.begin(), peaks.end(), [&points](std::int16_t a, std::int16_t b) {
        return std::abs(points[static_cast<std::size_t>(a)]) > std::abs(points[static_cast<std::size_t>(b)]);
    });
    return peaks;
}

} // namespace Traces::Samples
