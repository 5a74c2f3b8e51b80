// Raw power readings for tests, with a value of its own in every field.
#pragma once

#include "support/RawBuilder.h"

namespace Traces::Testing {

/// A power meter's or a power monitor's: the layouts share their offsets.
inline RawBuilder RawPower(int mode = 64)
{
    RawBuilder raw = RawHeader(155, mode, 1);
    raw.Number(57, 1, 3).Number(58, 1, 1).Number(59, 4, 596'000'000).Number(63, 4, 602'500'000);
    raw.Number(67, 4, 599'250'000).Number(71, 4, 6'500'000).Number(75, 1, 1).Number(76, 4, 12'500);
    raw.Number(80, 1, 0).Number(81, 4, -50'250).Number(85, 1, 2).Number(86, 1, 0).Number(87, 1, 1);
    raw.Number(88, 4, 10'000'000).Number(92, 2, 49).Number(94, 2, 35).Number(106, 4, 44'588'170);
    raw.Number(110, 4, -93'159'000).Number(114, 2, 253).Number(116, 1, 2).Text(117, "UHF TV channel 35");
    raw.Number(151, 4, -36'570);
    return raw;
}

/// A high accuracy power meter's.
inline RawBuilder RawZephra()
{
    RawBuilder raw = RawHeader(128, 67, 1);
    raw.Number(57, 4, 2'140'000).Number(61, 2, -1234).Number(63, 1, 1).Number(64, 1, 0).Number(65, 2, -150);
    raw.Number(67, 1, 1).Number(68, 1, 1).Number(70, 2, -2000).Number(72, 1, 0).Number(73, 1, 255);
    raw.Number(75, 2, 83).Number(77, 2, -2).Number(101, 1, 0).Number(102, 1, 1).Number(103, 2, 1000);
    raw.Number(105, 2, -3050).Number(107, 1, 1).Number(108, 1, 0).Number(109, 4, -33'512'345);
    raw.Number(113, 4, 151'123'456).Number(117, 2, 58).Text(119, "23:59:58");
    return raw;
}

} // namespace Traces::Testing
