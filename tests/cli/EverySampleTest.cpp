// The whole in one piece: every sample of every mode through one control.
#include "apps/cli/Script.h"
#include "cli/CliRun.h"
#include "control/Control.h"
#include "control/ModeTable.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

namespace Traces::Cli {
namespace {

class EverySample : public Testing::InFolder {
protected:
    Script script;

    /// The reply, which has neither fault nor error.
    Json Call(const std::string& line)
    {
        Json reply = Json::parse(script.Run(line).value_or("null"));
        EXPECT_FALSE(reply.contains("fault") || reply.contains("error")) << line << ": " << reply.dump();
        return reply;
    }

    void ExpectDrawn()
    {
        const Json surfaces = Call("Draw")["result"];
        EXPECT_TRUE(std::ranges::any_of(surfaces, [](const Json& surface) {
            return surface["visible"] == -1 && surface["picture"].size() > 2;
        }));
    }
};

const std::map<std::string, std::string> Loaders = {{"VNA", "LoadVNAText"},
                                                    {"SPA", "LoadSPAText"},
                                                    {"CS", "LoadCSText"},
                                                    {"SPG", "LoadSpectroText"},
                                                    {"PMET", "LoadPowerMeterText"},
                                                    {"PMON", "LoadPowerMonitorText"},
                                                    {"HIPM", "LoadPowerMeter_Zephra_Text"},
                                                    {"ET1", "LoadE1T1Text"},
                                                    {"CDMA", "LoadCDMAText"},
                                                    {"GSM", "LoadGSMText"},
                                                    {"EVDO", "LoadEvDOText"},
                                                    {"IDEN", "LoadiDen_Tester_Text"},
                                                    {"GPST", "LoadiDen_GPS_Tester_Text"}};

TEST_F(EverySample, IsShownDrawnSavedLoadedAndSentByOneControl)
{
    std::vector<std::string> samples;
    for (const auto& entry : std::filesystem::directory_iterator(TRACES_SAMPLES_FOLDER))
        samples.push_back(entry.path().string());
    std::ranges::sort(samples);
    std::set<int> modes;
    Control& control = script.Instance();
    for (const std::string& sample : samples) {
        SCOPED_TRACE(sample);
        EXPECT_EQ(Call("ShowTrace " + sample)["result"], -1);
        const ModeRow* row = CurrentRow(control);
        ASSERT_TRUE(row != nullptr && row->TextFile != nullptr && row->Holder != nullptr);
        modes.insert(row->Mode);
        Call("ShowParams true");
        Call("Resize 911 480");
        ExpectDrawn();
        for (const FamilyMenuItem& item : row->Menu.Items)
            Call("MenuItem " + std::string(item.Name));
        Call("ShowParams false");
        Call("Resize 550 480");
        Call("TraceInfo");
        Call("TracePicture");

        const std::string extension(row->TextFile->Extension);
        const std::string saved = Path("saved." + extension);
        Call("Answer " + saved);
        EXPECT_EQ(Call("SaveTrace " + saved)["result"], -1);
        Call(Loaders.at(extension) + ' ' + saved);
        EXPECT_EQ(control.CurrentMode, row->Mode);
        ExpectDrawn();
        const auto frame = [&](const std::string& name) {
            return Call("GetUpLoadTrace " + name)["result"].get<std::string>().size();
        };
        EXPECT_EQ(frame("\"\"") > 0, row->EncodeRecord != nullptr);
        // The frame of a sweep's file holds 211 points.
        if (extension != "VNA" || control.Header.DataPoints <= 211) {
            EXPECT_EQ(frame(saved) > 0, row->TextFile->EncodeText != nullptr);
        }
        EXPECT_EQ(frame(sample) > 0, row->EncodeRaw != nullptr);
    }
    std::set<int> all;
    for (const ModeRow& row : AllFamilies.Modes)
        if (row.Decode != nullptr)
            all.insert(row.Mode);
    EXPECT_EQ(modes, all) << "each mode that a raw trace brings has a sample";
}

} // namespace
} // namespace Traces::Cli
