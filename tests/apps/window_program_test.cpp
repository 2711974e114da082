#include <gtest/gtest.h>

#include "support/process.h"
#include "support/scratch.h"

namespace monitra {
namespace {

/// The preferences that a run without a choice leaves.
const std::string stored =
    "{\n  \"Setup\": {\n    \"Inv0\": \"0\",\n    \"Inv1\": \"0\",\n    \"Inv2\": \"0\",\n"
    "    \"LPT\": \" 0\",\n    \"Seb\": \"100\"\n  }\n}\n";

/// Starts a program without a display, signals it once its window shows, and gives what it printed
/// and its preferences.
std::string endedBy(const std::string& signal, const std::string& program) {
  const support::Scratch scratch;
  const support::Ran ran = support::shell(
      "cd " + support::quoted(scratch.path()) +
      "; export XDG_CONFIG_HOME=$PWD XDG_RUNTIME_DIR=$PWD QT_QPA_PLATFORM=offscreen\n" +
      support::quoted(MONITRA_BIN "/" + program) + " >seen 2>errors & program=$!\n" +
      "until grep -qs port seen || ! kill -0 $program; do sleep 0.05; done\n" + "kill -" + signal +
      " $program; wait $program; code=$?; cat seen; exit $code");
  EXPECT_EQ(ran.exitCode, 0);
  return ran.output + scratch.read("monitra/" + program + ".json");
}

TEST(WindowProgram, EverySignalRunsTheShutdownWithoutItsQuestion) {
  const std::string rest = " (X 0, Y 0, Z 0, terhelés 0%)\n";
  for (const std::string signal : {"TERM", "INT", "HUP"}) {
    EXPECT_EQ(endedBy(signal, "monitra-szimulator"),
              "Szimulált port: a jelek egy virtuális vezérlőhöz mennek, a gép nem mozdul.\n"
              "&H378 PCB V4.x: 99 0 16" +
                  rest + "&H378 PCB V4.x: 110 0 16" + rest + "&H378 PCB V4.x: 120 0 16" + rest +
                  stored);
  }
}

TEST(WindowProgram, StartsAndEndsWithoutAPortAsWell) {
  const support::Ran ports = support::shell(support::quoted(MONITRA_BIN "/monitra-ctl") + " ports");
  if (ports.output.find("0x") != std::string::npos) {
    GTEST_SKIP() << "this PC has a port, which a test must not touch";
  }
  EXPECT_EQ(ports.exitCode, 3);
  EXPECT_EQ(endedBy("TERM", "Monitra Setup"),
            ports.output.substr(0, ports.output.find('\n') + 1) + stored);
}

}  // namespace
}  // namespace monitra
