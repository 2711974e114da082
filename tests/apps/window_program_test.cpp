#include <gtest/gtest.h>

#include "support/process.h"
#include "support/scratch.h"

namespace monitra {
namespace {

TEST(Simulator, EverySignalRunsTheShutdownWithoutItsQuestion) {
  const std::string status =
      "Szimulált port: a jelek egy virtuális vezérlőhöz mennek, gép nem mozdul.\n";
  for (const std::string signal : {"TERM", "INT", "HUP"}) {
    const support::Scratch scratch;
    const support::Ran ran = support::shell(
        "cd " + support::quoted(scratch.path()) +
        "; export XDG_CONFIG_HOME=$PWD XDG_RUNTIME_DIR=$PWD QT_QPA_PLATFORM=offscreen\n" +
        support::quoted(MONITRA_BIN "/monitra-szimulator") + " >seen 2>errors & program=$!\n" +
        "until grep -qs Szim seen || ! kill -0 $program; do sleep 0.05; done\n" + "kill -" +
        signal + " $program; wait $program; code=$?; cat seen; exit $code");
    EXPECT_EQ(ran.exitCode, 0);
    EXPECT_EQ(ran.output, status +
                              "&H378, PCB V4.x: 99 0 16\n&H378, PCB V4.x: 110 0 16\n"
                              "&H378, PCB V4.x: 120 0 16\n");
    EXPECT_EQ(
        scratch.read("monitra/monitra-szimulator.json"),
        "{\n  \"Setup\": {\n    \"Inv0\": \"0\",\n    \"Inv1\": \"0\",\n    \"Inv2\": \"0\",\n"
        "    \"LPT\": \" 0\",\n    \"Seb\": \"100\"\n  }\n}\n");
  }
}

}  // namespace
}  // namespace monitra
