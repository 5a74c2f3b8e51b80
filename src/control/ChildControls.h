// The picture boxes, labels and lists that a control owns, each under its own name below its parent. One
// holder a mode family fills the control; it is shown when a trace of its family is.
#pragma once

#include "control/ChartSurface.h"
#include "formats/ParameterList.h"

#include <array>

namespace Traces {

struct ChildControls {
    explicit ChildControls(const Traces::Screen& screenFacts) : screen(screenFacts) {}

private:
    const Traces::Screen& screen;

public:
    ChartSurface Surface{"Plot", nullptr, screen}; ///< the control itself

    ChartSurface VNAHolder{"VNAHolder", &Surface, screen};
    ChartSurface VNABox{"VNABox", &VNAHolder, screen};
    Label VNACoords{"VNACoords", VNABox};

    ChartSurface SPAHolder{"SPAHolder", &Surface, screen};
    ChartSurface SPABox{"SPABox", &SPAHolder, screen};
    Label SPACoords{"SPACoords", SPABox};

    ChartSurface CSHolder{"CSHolder", &Surface, screen};
    ChartSurface CSBox{"CSBox", &CSHolder, screen};
    Label CSCoords{"CSCoords", CSBox};

    ChartSurface SpectroHolder{"SpectroHolder", &Surface, screen};
    ChartSurface SpectroBox{"SpectroBox", &SpectroHolder, screen};
    Label SpectroCoords{"SpectroCoords", SpectroBox};

    ChartSurface PMHolder{"PMHolder", &Surface, screen};
    Label PowerLabel{"PowerLabel", PMHolder};
    ChartSurface PowerBar{"PowerBar", &PMHolder, screen};

    ChartSurface ZephraHolder{"ZephraHolder", &Surface, screen};
    Label ZephraPowerLabel{"ZephraPowerLabel", ZephraHolder};
    Label ZephraPowerLabelUnit{"ZephraPowerLabelUnit", ZephraHolder};

    ChartSurface E1T1Holder{"E1T1Holder", &Surface, screen};
    ChartSurface ErrorsBox{"ErrorsBox", &E1T1Holder, screen};
    ChartSurface E1T1Box{"E1T1Box", &E1T1Holder, screen};
    Label E1T1Coords{"E1T1Coords", E1T1Box};
    Label VppLabel{"VppLabel", E1T1Holder};
    ChartSurface VppBar{"VppBar", &E1T1Holder, screen};
    Label VFFreqLabel{"VFFreqLabel", E1T1Holder};
    Label VFPowerLabel{"VFPowerLabel", E1T1Holder};

    ChartSurface GSMHolder{"GSMHolder", &Surface, screen};
    ChartSurface GSMBox{"GSMBox", &GSMHolder, screen};
    Label GSMCoords{"GSMCoords", GSMBox};

    ChartSurface CDMAHolder{"CDMAHolder", &Surface, screen};
    ChartSurface CDMABox{"CDMABox", &CDMAHolder, screen};
    Label CDMACoords{"CDMACoords", CDMABox};

    ChartSurface EvDOHolder{"EvDOHolder", &Surface, screen};
    ChartSurface EvDOTopBox{"EvDOTopBox", &EvDOHolder, screen};
    ChartSurface EvDOSubBox{"EvDOSubBox", &EvDOHolder, screen};
    Label EvDOCoords{"EvDOCoords", EvDOTopBox};
    Label EvDOSubCoords{"EvDOSubCoords", EvDOSubBox};

    ChartSurface GPSiDENHolder{"GPSiDENHolder", &Surface, screen};
    ChartSurface GPSiDENBox{"GPSiDENBox", &GPSiDENHolder, screen};

    ChartSurface idenHolder{"idenHolder", &Surface, screen};
    ChartSurface idenbox{"idenbox", &idenHolder, screen};
    ChartSurface idenbox1{"idenbox1", &idenHolder, screen};
    ChartSurface idenbox2{"idenbox2", &idenHolder, screen};
    ChartSurface idenbox3{"idenbox3", &idenHolder, screen};
    Label iDenCoords{"iDenCoords", idenbox};
    ParameterList lstiden;

    ChartSurface ParamBox{"ParamBox", &Surface, screen}; ///< summary pane
    ParameterList lstParameters;

    /// The holders in the order in which a redraw sets them visible or not.
    std::array<ChartSurface*, 12> Holders()
    {
        return {&VNAHolder,  &SPAHolder, &PMHolder, &ZephraHolder,  &E1T1Holder,    &CDMAHolder,
                &EvDOHolder, &GSMHolder, &CSHolder, &SpectroHolder, &GPSiDENHolder, &idenHolder};
    }

    /// The boxes that Clear empties, in its order.
    std::array<ChartSurface*, 11> ChartBoxes()
    {
        return {&VNABox,  &SPABox, &CDMABox,    &EvDOTopBox, &EvDOSubBox, &GSMBox,
                &E1T1Box, &CSBox,  &SpectroBox, &GPSiDENBox, &idenbox};
    }
};

} // namespace Traces
