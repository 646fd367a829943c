// tarvo-inspect as a user runs it: its output, its JSON, and its answer to bad input.
#include <gtest/gtest.h>

#include <QImage>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <nlohmann/json.hpp>
#include <numeric>
#include <sstream>

#include "platform/ScreenLists.h"
#include "rtl/Types.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

struct TToolRun {
  int ExitCode = -1;
  String Out;
  String Err;
};

TToolRun RunTool(const String& AArguments) {
  // One file a test process: ctest runs the tests of this file side by side.
  const String errPath = testing::TempDir() + "tarvo-inspect-stderr-" + std::to_string(getpid()) + ".txt";
  const String command = String(TARVO_INSPECT_PATH) + " " + AArguments + " 2>" + errPath;
  TToolRun run;
  FILE* pipe = popen(command.c_str(), "r");
  char buffer[4096];
  while (std::size_t read = std::fread(buffer, 1, sizeof buffer, pipe)) run.Out.append(buffer, read);
  const int status = pclose(pipe);
  run.ExitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  std::stringstream err;
  err << std::ifstream(errPath).rdbuf();
  run.Err = err.str();
  return run;
}

TEST(HeadlessToolTest, RowsWithMarkersAfterTheWritesWentThroughTheEditors) {
  TToolRun run = RunTool("--select Generator1,Generator2");
  ASSERT_EQ(run.ExitCode, 0) << run.Err;
  EXPECT_EQ(run.Err, "");
  for (const char* line :
       {"\nFrequency = 440;1000  *\n", "\nPeakToPeak = 1.6;2  * [ro]\n", "\nPhase (degrees) = 0;90  *\n"})
    EXPECT_NE(run.Out.find(line), String::npos) << line << run.Out;
  EXPECT_EQ(run.Out.find("NoiseSeed"), String::npos);

  // Writing the value a row has is a write all the same, not text dropped.
  run = RunTool("--select Filter1 --set Cutoff=1200 --set Cutoff=1200 --reset GainDb");
  ASSERT_EQ(run.ExitCode, 0) << run.Err;
  EXPECT_NE(run.Out.find("\nCutoff = 1200  *\n"), String::npos) << run.Out;
  EXPECT_NE(run.Out.find("\nGainDb = 0\n"), String::npos) << run.Out;
  // A multi-line text stays on its row.
  EXPECT_NE(run.Out.find("Description = Band-pass for the test tone.\\nKeeps"), String::npos) << run.Out;

  // Numbers and dates as the host's locale writes them; a date's parts from the year down.
  run = RunTool("--locale de --set Gain=0,25 --expand CalibrationDate");
  ASSERT_EQ(run.ExitCode, 0) << run.Err;
  EXPECT_NE(run.Out.find("\nGain = 0,25  *\n"), String::npos) << run.Out;
  EXPECT_NE(run.Out.find("\nCalibrationDate = 14.03.2026  * +\n  Year = 2026  *\n  Month = 3  *\n"), String::npos)
      << run.Out;
}

// Every field of a row, the ranges where the editor answers them: Offset suppresses its hard one.
TEST(HeadlessToolTest, JsonRowsCarryEveryFieldOfTheRow) {
  const TToolRun run = RunTool("--select Scope1 --json");
  ASSERT_EQ(run.ExitCode, 0) << run.Err;
  const nlohmann::json rows = nlohmann::json::parse(run.Out);
  const auto row = [&](const char* AName) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const nlohmann::json& ARow) { return ARow["name"] == AName; });
    return found == rows.end() ? nlohmann::json() : *found;
  };
  const char* expected = R"json({"path": "Offset", "name": "Offset", "display_name": "Offset", "value": "-20",
      "editor": "TIntegerPropertyEditor", "default": false, "read_only": false, "expandable": false,
      "suggested_range": [-2147483648, 100], "categories": ["Input"], "children": []})json";
  EXPECT_EQ(row("Offset"), nlohmann::json::parse(expected));
  EXPECT_EQ(row("Gain")["range"], nlohmann::json({-2147483648LL, 255}));
  EXPECT_EQ(row("Gain")["suggested_range"], nlohmann::json({0, 255}));
  EXPECT_EQ(row("Enabled")["categories"], nlohmann::json({"Visual", "Behavior"}));
}

// Categories, the search and the click, each as a user would try them on the scope.
TEST(HeadlessToolTest, CategoriesFilterAndClick) {
  TToolRun run = RunTool("--select Scope1 --categories");
  ASSERT_EQ(run.ExitCode, 0) << run.Err;
  const std::size_t visual = run.Out.find("[Visual]\n  Color = clBlack  *\n"),
                    behavior = run.Out.find("[Behavior]\n  Enabled = True\n"),
                    rest = run.Out.find("[Miscellaneous]\n  Background = #80204060\n  Caption = ");
  EXPECT_TRUE(visual == 0 && visual < behavior && behavior < rest && rest != String::npos) << run.Out;
  run = RunTool("--select Scope1 --filter \"count sample\"");
  EXPECT_EQ(run.Out, "SampleCount = 4000000000  *\n");
  run = RunTool("--select Scope1 --click Grid --filter grid");
  EXPECT_EQ(run.Out, "Grid = False  *\n");
}

// The font name row lists the machine's font families, as the package enumerates them here.
TEST(HeadlessToolTest, ValuesPrintsTheRowsListOneALineOrAsAJsonArray) {
  const std::vector<String> families = ScreenFonts();
  TToolRun run = RunTool("--select Scope1 --values CaptionFont");
  ASSERT_EQ(run.ExitCode, 0) << run.Err;
  EXPECT_EQ(run.Out,
            std::accumulate(families.begin(), families.end(), String(),
                            [](const String& ALines, const String& AFamily) { return ALines + AFamily + "\n"; }));
  run = RunTool("--select Scope1 --json --values captionfont");
  EXPECT_EQ(nlohmann::json::parse(run.Out), nlohmann::json(families));
}

TEST(HeadlessToolTest, ObjectRowsShowSummariesAndArePickedByNameOrInTheirDialogs) {
  TToolRun run = RunTool("--select Scope1 --set Source=Generator2 --set Display=Night --expand Display");
  ASSERT_EQ(run.ExitCode, 0) << run.Err;
  for (const char* line : {"\nSource = Generator2\n", "\nDisplay = Night  * +\n  Intensity = 80\n",
                           "\n  Title = Night  *\n", "\nTitleFont = (Charset=DEFAULT_CHARSET,"})
    EXPECT_NE(run.Out.find(line), String::npos) << line << run.Out;
  EXPECT_EQ(run.Out.find(" @ "), String::npos) << "no address in any row";

  run = RunTool("--set NoiseShape=\"Pink noise\" --set NoiseShape.Octaves=6 --dialog Preset --answer calibration");
  ASSERT_EQ(run.ExitCode, 0) << run.Err;
  for (const char* line : {"\nNoiseShape = Pink noise  * +\n", "\nPreset = Calibration  *\n"})
    EXPECT_NE(run.Out.find(line), String::npos) << line << run.Out;
  run = RunTool("--dialog Preset");
  EXPECT_NE(run.Out.find("\nPreset = \n"), String::npos) << "a dialog without an answer is cancelled\n" << run.Out;

  EXPECT_EQ(RunTool("--values NoiseShape").Out, "White noise\nPink noise\nBrown noise\n");
  EXPECT_EQ(RunTool("--values Preset").Out, "Test tone\nCalibration\nSweep start\nCustom\n");
  EXPECT_EQ(RunTool("--select Filter1 --values Input").Out, "Generator1\nGenerator2\nFilter1\nScope1\nTriggerMark\nBaseline\nApplyButton\n");
}

// The pictures are the grid widget's own drawing: its tests check the pixels; here, that the tool
// writes them at the asked width, in the asked colours, and a list of values as its own picture.
TEST(HeadlessToolTest, PngDrawsTheGridOrTheListAtTheAskedWidthInTheAskedPalette) {
  const String light = testing::TempDir() + "grid-light.png", dark = testing::TempDir() + "grid-dark.png",
               list = testing::TempDir() + "grid-list.png";
  for (const String& arguments : {"--select Generator1 --png " + light, "--select Generator1 --palette dark --width 300 --png " + dark,
                                  "--values Waveform --png " + list}) {
    const TToolRun run = RunTool(arguments);
    ASSERT_EQ(run.ExitCode, 0) << arguments << ": " << run.Err;
    EXPECT_EQ(run.Out + run.Err, "") << arguments;
  }
  const QImage lightImage(QString::fromStdString(light)), darkImage(QString::fromStdString(dark)),
      listImage(QString::fromStdString(list));
  EXPECT_EQ(lightImage.width(), 480);
  EXPECT_EQ(darkImage.width(), 300);
  EXPECT_EQ(darkImage.height(), lightImage.height()) << "every row is drawn, whatever the width";
  const QPoint valueColumn(lightImage.width() - 20, lightImage.height() - 5);
  EXPECT_GT(lightImage.pixelColor(valueColumn).lightness(), 200);
  EXPECT_LT(darkImage.pixelColor(QPoint(darkImage.width() - 20, darkImage.height() - 5)).lightness(), 60);
  EXPECT_GT(listImage.height(), 4 * 10) << "five waveforms, each a line";
  EXPECT_LT(listImage.height(), lightImage.height());
}

// The scope's samples where the grid puts them, in either palette: rows of 18 under the 25 of the
// search bar, the value cell from 142. The filtered row comes first; the pen's and the brush's
// Style are the third row under their expanded object. The colour list's first name, clBlack, has
// a black swatch.
TEST(HeadlessToolTest, PngShowsTheSamplesOfTheScopesRowsInBothPalettes) {
  const auto gray = [](const QImage& AImage, int AX, int AY) { return qGray(AImage.pixel(AX, AY)); };
  const auto count = [&](const QImage& AImage, const QRect& ARect, auto ATest) {
    int result = 0;
    for (int y = ARect.top(); y <= ARect.bottom(); ++y)
      for (int x = ARect.left(); x <= ARect.right(); ++x) result += ATest(gray(AImage, x, y));
    return result;
  };
  const auto dark = [](int AGray) { return AGray < 100; };
  const auto light = [](int AGray) { return AGray > 200; };
  const String file = testing::TempDir() + "samples-" + std::to_string(getpid()) + ".png";
  const auto picture = [&](const String& AArguments) {
    const TToolRun run = RunTool("--select Scope1 " + AArguments + " --png " + file);
    EXPECT_EQ(run.ExitCode, 0) << run.Err;
    return QImage(QString::fromStdString(file));
  };
  for (const char* palette : {"light", "dark"}) {
    SCOPED_TRACE(palette);
    const bool isDark = String(palette) == "dark";
    const String options = "--palette " + String(palette) + " ";
    // The trace colour, yellow, fills its swatch; the text stands right of it.
    const QImage colour = picture(options + "--filter TraceColor");
    for (const QPoint at : {QPoint(145, 28), QPoint(150, 33), QPoint(156, 39)})
      EXPECT_EQ(colour.pixel(at), qRgb(255, 255, 0)) << at.x() << "," << at.y();
    EXPECT_NE(colour.pixel(170, 33), qRgb(255, 255, 0));
    // crCross on white in a pale frame, scaled to 16 by 16, whatever the palette.
    const QImage cursor = picture(options + "--filter Cursor");
    EXPECT_TRUE(light(gray(cursor, 144, 27)) && light(gray(cursor, 156, 39)));
    EXPECT_GT(count(cursor, QRect(149, 26, 2, 14), [](int AGray) { return AGray < 160; }), 10);
    EXPECT_GT(count(cursor, QRect(142, 25, 16, 16), light), 150);
    // psDash: the dashes in the text colour over the pale frame, the inside in the window colour.
    const QImage pen = picture(options + "--expand TracePen --filter TracePen");
    EXPECT_EQ(count(pen, QRect(144, 63, 14, 14), isDark ? dark : light), 14 * 14);
    const int dashes = count(pen, QRect(143, 62, 16, 1), dark), pale = count(pen, QRect(143, 62, 16, 1), light);
    EXPECT_TRUE(isDark ? pale == 16 : dashes > 0 && pale > 0) << dashes << " " << pale;
    // bsDiagCross: the outline in the text colour, the hatch of both colours inside.
    const QImage brush = picture(options + "--expand ScreenBrush --filter ScreenBrush");
    const auto text = isDark ? light : dark;
    for (const QPoint corner : {QPoint(143, 62), QPoint(158, 62), QPoint(143, 77), QPoint(158, 77)})
      EXPECT_TRUE(text(gray(brush, corner.x(), corner.y())));
    EXPECT_TRUE(count(brush, QRect(144, 63, 14, 14), dark) > 20 && count(brush, QRect(144, 63, 14, 14), light) > 20);
  }
  EXPECT_EQ(picture("--values TraceColor").pixel(6, 7), qRgb(0, 0, 0));
}

TEST(HeadlessToolTest, ListsTheRegisteredClassesWithTheirPages) {
  // The bundled module named again, twice: each load counts and is balanced by its unload.
  const String module = String(" --module ") + TARVO_SAMPLES_MODULE_PATH;
  for (const String& arguments : {String("--list-classes"), "--list-classes" + module + module}) {
    const TToolRun run = RunTool(arguments);
    ASSERT_EQ(run.ExitCode, 0) << arguments << ": " << run.Err;
    EXPECT_EQ(run.Out, "TConfirmButton (Signal)\nTSignalFilter (Signal)\nTSignalGenerator (Signal)\nTSignalScope (Signal)\n")
        << arguments;
  }
}

TEST(HeadlessToolTest, BadInputIsOneClearMessageWithExitCodeTwoAndNothingPrinted) {
  const String design = testing::TempDir() + "tarvo-inspect-bad-design.json";
  std::ofstream(design)
      << R"({"components": [{"class": "TSignalGenerator", "name": "G", "properties": {"Pitch": "1"}}]})";
  const String faulty = String(TARVO_FAULTY_MODULE_DIR) + "/libtarvo_faulty_DuplicateMember.so";
  const struct {
    const char* Name;
    String Arguments;
    String Message;
  } cases[] = {
      {"unknown option", "--frob", "unknown option \"--frob\" (see --help)"},
      {"missing argument", "--select", "--select expects an argument"},
      {"empty name in a list", "--select A,,B", "--select expects component names separated by \",\""},
      {"assignment without a value", "--set Frequency", "--set expects PATH=TEXT, not \"Frequency\""},
      {"unknown component", "--select Nobody", "no component named \"Nobody\" in the design"},
      {"unknown row", "--set Bogus=1", "no row \"Bogus\""},
      {"read-only row", "--set PeakToPeak=3", "row \"PeakToPeak\" is read-only"},
      {"row that does not expand", "--expand Frequency", "row \"Frequency\" does not expand"},
      {"value the setter refuses", "--set Frequency=-5", "Frequency must not be negative: -5"},
      {"text the converter refuses", "--set frequency=abc", "Frequency: \"abc\" was not accepted"},
      {"number beyond the type", "--select Scope1 --set Gain=300", "Gain: \"300\" was not accepted"},
      {"unknown locale", "--locale xx", "unknown locale \"xx\""},
      {"row without a list", "--values Frequency", "Frequency: no list of values"},
      {"row that takes no click", "--select Scope1 --click gain", "row \"Gain\" takes no click"},
      {"component of the wrong kind", "--select Scope1 --set Source=Scope1",
       "'Scope1' gives no signal: the source of scope 'Scope1' must be a generator or a filter"},
      {"answer the dialog lacks", "--dialog Preset --answer Nope", "the dialog \"Choose a preset\" offers no \"Nope\""},
      {"answer outside a fixed list", "--select Generator2 --dialog SampleRate --answer 96000 --set SampleRate=1",
       "SampleRate: \"1\" was not accepted"},
      {"answer without a dialog", "--answer x", "--answer follows the --dialog it answers"},
      {"row without a dialog", "--dialog Frequency", "row \"Frequency\" has no dialog"},
      {"picture too narrow", "--png x.png --width 5", "--width expects a number of pixels from 100 to 4000, not \"5\""},
      {"unknown palette", "--palette blue", "--palette expects light or dark, not \"blue\""},
      {"list asked twice", "--values SampleRate --values Waveform", "--values may be given once"},
      {"bad design", "--design " + design, design + ": Unknown property 'Pitch' of component 'G' (TSignalGenerator)"},
      {"module with a mistake", "--module " + faulty,
       "cannot load module " + faulty + ": TFaultyGadget.level: the member is published twice"}};
  Testing::ForEachRow(cases, [](const auto& bad) {
    const TToolRun run = RunTool(bad.Arguments);
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_EQ(run.Err, "error: " + bad.Message + "\n");
    EXPECT_EQ(run.Out, "");
  });
}

} // namespace
} // namespace Tarvo
