#include <gtest/gtest.h>

#include "support/scratch.h"

namespace monitra {
namespace {

using namespace support;

/// The preferences that a run without a choice leaves.
const std::string stored =
    "{\n  \"Setup\": {\n    \"Inv0\": \"0\",\n    \"Inv1\": \"0\",\n    \"Inv2\": \"0\",\n"
    "    \"LPT\": \" 0\",\n    \"Seb\": \"100\"\n  }\n}\n";

/// Starts a program without a display, signals it once its window shows, and gives what a reader
/// saw of what it printed, and its preferences.
std::string endedBy(const std::string& signal, const std::string& program,
                    const std::string& reader = "cat") {
  const Scratch scratch;
  const Ran ran = shell("cd " + scratch.path() + "; program=" + quoted(MONITRA_BIN "/" + program) +
                        " signal=" + signal + " reader=" + quoted(reader) + R"(
    export XDG_CONFIG_HOME=$PWD XDG_RUNTIME_DIR=$PWD QT_QPA_PLATFORM=offscreen
    mkfifo out
    $reader <out >seen & listening=$!
    env --default-signal "$program" >out 2>errors & running=$!
    until grep -qs port seen || ! kill -0 $running; do sleep 0.05; done
    kill -$signal $running; wait $running; code=$?; wait $listening; cat seen; exit $code)");
  EXPECT_EQ(ran.exitCode, 0);
  return ran.output + scratch.read("monitra/" + program + ".json");
}

TEST(WindowProgram, EverySignalRunsTheShutdownWithoutItsQuestion) {
  const std::string first =
      "Szimulált port: a jelek egy virtuális vezérlőhöz mennek, a gép nem mozdul.\n";
  std::string sent;
  for (const std::string bytes : {"99 0 16", "110 0 16", "120 0 16"}) {
    sent += "&H378 PCB V4.x: " + bytes + " (X 0, Y 0, Z 0, terhelés 0%)\n";
  }
  for (const std::string signal : {"TERM", "INT", "QUIT", "HUP"}) {
    EXPECT_EQ(endedBy(signal, "monitra-szimulator"), first + sent + stored) << signal;
  }
  EXPECT_EQ(endedBy("TERM", "monitra-szimulator", "sed -u 1q"), first + stored)
      << "also where nobody listens any more";
}

TEST(WindowProgram, StartsAndEndsWithoutAPortAsWell) {
  const Ran ports = shell(quoted(MONITRA_BIN "/monitra-ctl") + " ports");
  if (ports.output.find("0x") != std::string::npos) {
    GTEST_SKIP() << "this PC has a port, which a test must not touch";
  }
  EXPECT_EQ(ports.exitCode, 3);
  EXPECT_EQ(endedBy("TERM", "Monitra Setup"),
            ports.output.substr(0, ports.output.find('\n') + 1) + stored);
}

}  // namespace
}  // namespace monitra
