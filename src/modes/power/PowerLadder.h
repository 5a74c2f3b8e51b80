// How the power views scale a level: the ladder that picks a unit, and the mantissa and exponent of their
// watt scale.
#pragma once

#include <string>

namespace Traces {

struct Control;

/// Replaces a level in dBm by watts and sets the control's PowerLadderValue and PowerLadderUnit. From 1 W on
/// the value stays that of the level before, below 1E-15 W the unit too: users of the instruments know these
/// pictures, and DbmToPowerScale is the ladder without the upper gap.
void PowerLadder(Control& control, double& level);

/// Watts of a level in dBm; 0 for a level whose power no number holds.
double WattsOfDbm(double level);

/// A number as "1.25E-03" has it.
struct ScientificParts {
    double Mantissa = 0;  ///< two decimals
    std::string Exponent; ///< sign and two digits at least
};
ScientificParts ScientificPartsOf(double value);

} // namespace Traces
