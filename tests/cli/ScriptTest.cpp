#include "apps/cli/Script.h"

#include "apps/cli/StateFields.h"
#include "cli/CliRun.h"
#include "control/Control.h"

#include <map>

namespace Traces::Cli {
namespace {

using Testing::SampleName;
using Testing::ThreePointSweep;

class ScriptCalls : public Testing::InFolder {
protected:
    Script script;

    Json Call(const std::string& line) { return Json::parse(script.Run(line).value_or("null")); }
    Json ResultOf(const std::string& line) { return Call(line).at("result"); }

    struct Step {
        std::string Line, Reply; ///< an empty reply: none at all
    };

    void Expect(const std::vector<Step>& steps)
    {
        for (const Step& step : steps)
            EXPECT_EQ(script.Run(step.Line).value_or(""), step.Reply) << step.Line;
    }
};

TEST_F(ScriptCalls, ReplyWithResultsFaultsAndErrorsAndGoOn)
{
    const std::string raw = Put("three.raw", ThreePointSweep());
    const std::string onePoint = Put("one.raw", Traces::Testing::RawSweep(0, {1000}).AsText());
    const std::string empty = Put("empty.raw", "");
    Expect({
        {"", ""},
        // results; a member without one has none in its reply
        {"ShowTrace " + raw, R"({"call":"ShowTrace","result":-1})"},
        {"TraceType", R"({"call":"TraceType","result":"RL"})"},
        {"count", R"({"call":"count","result":3})"},
        {"ShowTrace " + empty, R"({"call":"ShowTrace","result":0})"},
        {"Clear", R"({"call":"Clear"})"},
        {"Refresh", R"({"call":"Refresh"})"},
        {R"(ConvToDBCS "  two words ")", R"({"call":"ConvToDBCS","result":"two words"})"},
        // properties: the name alone reads, with a value it writes
        {"SetIndex -8", R"({"call":"SetIndex"})"},
        {"SetIndex", R"({"call":"SetIndex","result":2})"},
        {"AutoScaleY true", R"({"call":"AutoScaleY"})"},
        {"AutoScaleY", R"({"call":"AutoScaleY","result":-1})"},
        {R"(TraceName "\u20ac 5 µ")", R"({"call":"TraceName"})"},
        {"TraceName", R"({"call":"TraceName","result":"€ 5 µ"})"},
        {"TraceNum 2.5", R"({"call":"TraceNum"})"},
        {"TraceNum", R"({"call":"TraceNum","result":2})"},
        // curves
        {"Plot 2 [1,2] [3,4.5]", R"({"call":"Plot","result":-1})"},
        {"count", R"({"call":"count","result":2})"},
        {"Plot 3 [1,2] [3,4,5]", R"({"call":"Plot","result":0})"},
        {"Plot 0 [] []", R"({"call":"Plot","result":0})"},
        // faults
        {"ShowTrace " + onePoint, R"({"call":"ShowTrace","fault":"DivisionByZero"})"},
        {"ShowTrace " + Path("missing"), R"({"call":"ShowTrace","fault":"FileAccess"})"},
        {"ShowTrace " + folder.string(), R"({"call":"ShowTrace","fault":"FileAccess"})"},
        {"loadTextFile " + Path("missing"), R"({"call":"loadTextFile","fault":"FileAccess"})"},
        {"DisplayTrace " + empty, R"({"call":"DisplayTrace","fault":"Range"})"},
        {"SetIndex 32768", R"({"call":"SetIndex","fault":"Overflow"})"},
        {"SetIndex 1e999", R"({"call":"SetIndex","fault":"Overflow"})"},
        {"Plot 1 [1e39] [0]", R"({"call":"Plot","fault":"Overflow"})"},
        // errors
        {"Nonsense 1", R"({"call":"Nonsense","error":"unknown member"})"},
        {"YScaleTop", R"({"call":"YScaleTop","error":"unknown member"})"},
        {"Clear 1", R"({"call":"Clear","error":"Clear takes no argument"})"},
        {"SetIndex two", R"({"call":"SetIndex","error":"SetIndex takes integer"})"},
        {"SetIndex 1 2", R"({"call":"SetIndex","error":"SetIndex takes integer"})"},
        {"Resize 5", R"({"call":"Resize","error":"Resize takes long long"})"},
        {"Plot 1 2 3", R"({"call":"Plot","error":"Plot takes integer numbers numbers"})"},
        {"ShowTrace [1]", R"({"call":"ShowTrace","error":"ShowTrace takes file"})"},
        {R"(ShowTrace "a)", R"({"call":"ShowTrace","error":"malformed line: a quote isn't closed"})"},
        {"Draw Nowhere", R"({"call":"Draw","error":"there is no surface or label Nowhere"})"},
        {"TextWidth Nowhere x 10", R"({"call":"TextWidth","error":"there is no surface Nowhere"})"},
    });
}

TEST_F(ScriptCalls, SaveUnderTheNameThatTheNextDialogAnswers)
{
    const std::string raw = Put("three.raw", ThreePointSweep());
    const std::string first = Path("first.vna");
    const std::string second = Path("second.vna");
    Expect({
        {"ShowTrace " + raw, R"({"call":"ShowTrace","result":-1})"},
        {R"(SaveTrace "")", R"({"call":"SaveTrace","result":0})"},
        {"Answer " + first, R"({"call":"Answer"})"},
        {"Answer " + Path("second"), R"({"call":"Answer"})"},
        {"SaveTrace", R"({"call":"SaveTrace","result":-1})"},
        {"SaveRawTraceB " + raw + " " + Path("raw"), R"({"call":"SaveRawTraceB","result":-1})"},
        {"LoadVNAText " + first, R"({"call":"LoadVNAText"})"},
        {"SaveTrace " + first, R"({"call":"SaveTrace","result":-1})"},
    });
    EXPECT_EQ(Testing::ContentOf(first), Testing::ContentOf(Path("raw.VNA")));
    EXPECT_FALSE(Testing::ContentOf(Path("second.VNA")).empty()) << "the dialog's name counts";
}

TEST_F(ScriptCalls, TellTheMessagesOfThatCallAlone)
{
    std::string spoilt = "CHECKSUM=0000000001\r\nMode:\tRL Frequency\r\n";
    EXPECT_EQ(script.Run("LoadVNAText " + Put("spoilt.vna", spoilt)),
              R"({"call":"LoadVNAText","messages":[{"title":"File Open",)"
              R"("text":"Failed to open trace file.  Checksum failed.","icon":"stop"}]})");
    EXPECT_EQ(script.Run("Clear"), R"({"call":"Clear"})");
}

TEST_F(ScriptCalls, HandOverFramesInHexadecimal)
{
    const std::string raw = Put("three.raw", ThreePointSweep());
    Call("ShowTrace " + raw);
    const std::string ofFile = ResultOf("GetUpLoadTrace " + raw);
    EXPECT_EQ(ofFile.size(), 2U * 4450U);
    // Length, mode, header word; the date's text; at 315 the first point's raw magnitude.
    EXPECT_EQ(ofFile.substr(0, 18), "1162000102030431"
                                    "31");
    EXPECT_EQ(ofFile.substr(2 * 314, 8), "000003e8");
    EXPECT_EQ(ResultOf("GetUpLoadTraceB \"\"").get<std::string>().size(), 2U * (348U - 10U));
}

TEST_F(ScriptCalls, ShowTheStateUnderTheFieldsNames)
{
    Call("ShowTrace " + Put("three.raw", ThreePointSweep(1)));
    Call("ShowParams -1");
    const Json state = ResultOf("State");
    const std::map<std::string, Json> expected = {
        {"CurrentMode", 1},      {"Mode", 1},
        {"TraceLength", 348},    {"DataPoints", 3},
        {"HeaderByte3", 7},      {"HeaderWord", 0x1020304},
        {"YScaleTop", 1.5},      {"YScaleBottom", -30.25},
        {"ShowParams", -1},      {"TraceSaved", 0},
        {"GridColor", 0xC8C8C8}, {"Model", "TRC-100"},
        {"Version", "3.20"},     {"Date", "11/22/2026"},
    };
    for (const auto& [name, value] : expected)
        EXPECT_EQ(state.value(name, Json()), value) << name;
    EXPECT_EQ(std::string(state["RefNumber"]), std::string("TOWER7") + std::string(10, '\0'));

    // Properties read what the state shows.
    for (const StateField& field : StateFields()) {
        if (FindProperty(field.Name) == nullptr)
            continue;
        EXPECT_EQ(ResultOf(std::string(field.Name)), state[std::string(field.Name)]) << field.Name;
    }
}

TEST_F(ScriptCalls, PrintNumbersThatReadBackExactly)
{
    Call("ShowTrace " + SampleName("rl_dualband_antenna_601pts.raw"));
    const Json slots = ResultOf("Slots");
    ASSERT_EQ(slots.size(), LiveSlots);
    const TraceSlot& slot = script.Instance().TraceSlots[0];
    ASSERT_EQ(slots[0]["Length"], 601);
    EXPECT_EQ(slots[0]["X"].get<std::vector<double>>(), std::vector<double>(slot.X.begin(), slot.X.end()));
    EXPECT_EQ(slots[0]["Y"].get<std::vector<double>>(), std::vector<double>(slot.Y.begin(), slot.Y.end()));
}

TEST_F(ScriptCalls, ShowTheMarkersOfTheModeAndNoneWithoutATrace)
{
    EXPECT_EQ(script.Run("Markers"), R"({"call":"Markers"})");
    Call("ShowTrace " + Put("three.raw", ThreePointSweep()));
    script.Instance().VNAMarkers.MarkerOn[2] = true;
    script.Instance().VNAMarkers.MarkerText[2] = "859.250";
    EXPECT_EQ(ResultOf("Markers").dump(),
              R"({"Holder":"VNAHolder","SelectedMarker":0,"DraggedMarker":-1,"MarkerIndex":[0,0,0,0,0,0],)"
              R"("MarkerX":[0.0,0.0,0.0,0.0,0.0,0.0],"MarkerText":["","","859.250","","",""],)"
              R"("MarkerOn":[0,0,-1,0,0,0],"MarkerOnAlt":[0,0,0,0,0,0]})");
}

TEST_F(ScriptCalls, DrawListsWhatIsShownParentsFirst)
{
    const auto names = [&] {
        std::vector<std::string> list;
        for (const Json& item : ResultOf("Draw"))
            list.push_back(item["name"]);
        return list;
    };
    EXPECT_EQ(names(), (std::vector<std::string>{"Plot"}));
    Call("ShowTrace " + Put("three.raw", ThreePointSweep()));
    EXPECT_EQ(names(), (std::vector<std::string>{"Plot", "VNAHolder", "VNABox"}));
    script.Instance().VNACoords.Visible = true;
    EXPECT_EQ(names(), (std::vector<std::string>{"Plot", "VNAHolder", "VNABox", "VNACoords"}));

    Call("Resize 1100 480");
    const Json root = ResultOf("Draw")[0];
    EXPECT_EQ(root["parent"], "");
    EXPECT_EQ(root["rect"], Json::parse("[0,0,1100,480]"));
    EXPECT_EQ(root["scale"], Json::parse("[0,0,550,480]"));
    EXPECT_EQ(ResultOf("Draw VNACoords").dump(),
              R"([{"name":"VNACoords","parent":"VNABox","visible":-1,"rect":[0.0,0.0,0.0,0.0],)"
              R"("caption":"Coordinates","backcolor":0,"fontsize":8.25}])");
    EXPECT_EQ(ResultOf("Draw SPABox")[0]["visible"], -1) << "its holder is hidden, it isn't";
    EXPECT_EQ(ResultOf("Draw SPAHolder")[0]["visible"], 0);
}

TEST_F(ScriptCalls, DrawPrintsEveryFieldOfEveryCommand)
{
    ChartSurface& box = script.Instance().VNABox;
    box.AutoRedraw = true;
    box.Scale(1, 2, 11, -18);
    box.DrawStyle = LineStyle::Dotted;
    box.DrawWidth = 2;
    box.Line(1, 2, 3, 4.5F, 0xFF);
    box.DrawStyle = LineStyle::Dashed;
    box.Box(1, 2, 3, 4, 0xFFFF);
    box.FillBox(5, 6, 7, 8, 9);
    box.Circle(1, 1, 2, 3);
    box.Image(1, 2, 3, 4, {2, 1, {0, 0xAB}, {White, 7}});
    box.AutoRedraw = false;
    box.FillTransparent = false;
    box.FillColor = 77;
    box.Circle(1, 1, 2, 3);
    box.Font = {"Symbol", 12.5F, true, true};
    box.ForeColor = White;
    box.CurrentX = 4;
    box.CurrentY = -4;
    box.Print("\xB5\"A");
    const Json dump = ResultOf("Draw VNABox")[0];
    EXPECT_EQ(dump["picture"], Json::parse(R"([["Scale",1,2,10,-20],["Line",1,2,3,4.5,255,2,2],
        ["Box",1,2,3,4,65535,1,2],["Fill",5,6,7,8,9],["Circle",1,1,2,3,-1],["Image",1,2,3,4,2,1,[16777215,7],"00ab"]])"));
    EXPECT_EQ(dump["overlay"], Json::parse(R"([["Scale",1,2,10,-20],["Circle",1,1,2,3,77],
        ["Text",4,-4,"µ\"A",12.5,-1,-1,16777215,"Symbol"]])"));
}

TEST_F(ScriptCalls, MeasureTextsOnASurfaceWithoutChangingIt)
{
    EXPECT_EQ(Call("TextWidth EvDOTopBox abc 10")["error"], "EvDOTopBox has no width yet");
    const double width = ResultOf("TextWidth VNAHolder \"10 dB\" 10");
    EXPECT_NEAR(ResultOf("TextWidth VNAHolder \"10 dB\" 20").get<double>(), 2 * width, 1e-5);
    EXPECT_EQ(script.Instance().VNAHolder.Font.Size, Font{}.Size);
}

TEST_F(ScriptCalls, TellWhatTheLastCallAskedOfThePlatform)
{
    Call("ShowTrace " + Put("three.raw", ThreePointSweep()));
    Call("MouseDown VNABox 2 0 1 1");
    const Json menu = ResultOf("Asked")["menus"][0];
    EXPECT_EQ(menu["name"], "menuPopUpHeader");
    EXPECT_EQ(
        menu["items"][0],
        (Json{{"name", "menuAutoScale"}, {"caption", "AutoScale"}, {"enabled", true}, {"checked", false}}));
    EXPECT_EQ(menu["items"].back()["items"].size(), 8U) << "six markers, clear, values";
    Call("AutoScaleY true");
    EXPECT_EQ(ResultOf("Asked")["changed"], Json({"AutoScaleY"}));
    const Json bag = ResultOf("WriteProperties");
    EXPECT_EQ(bag["AutoScaleY"], -1);
    Call("AutoScaleY false");
    Call("ReadProperties " + Json(bag.dump()).dump());
    EXPECT_EQ(ResultOf("AutoScaleY"), -1);
    EXPECT_EQ(ResultOf("TracePicture")["type"], "image/svg+xml");
}

TEST(ScriptCommand, AnswersEachLineOfItsInputAndStopsAtItsEnd)
{
    const auto result = Testing::RunCli({"script"}, "SetIndex 3\r\n\nSetIndex\nBad");
    EXPECT_EQ(result.Status, 0);
    EXPECT_EQ(result.Out, "{\"call\":\"SetIndex\"}\n{\"call\":\"SetIndex\",\"result\":3}\n"
                          "{\"call\":\"Bad\",\"error\":\"unknown member\"}\n");
    EXPECT_EQ(Testing::RunCli({"script", "/nowhere/at.all"}).Status, 1);
    // A file's name that is no UTF-8 mustn't end the script.
    EXPECT_EQ(Testing::RunCli({"script", "-"}, "Caf\xE9\n").Out,
              "{\"call\":\"Caf\xEF\xBF\xBD\",\"error\":\"unknown member\"}\n");
}

} // namespace
} // namespace Traces::Cli
