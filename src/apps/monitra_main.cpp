#include "apps/window_program.h"
#include "ports/register_memory.h"

int main(int argc, char** argv) {
  monitra::ports::RegisterMemory noPort;
  return monitra::apps::run(argc, argv,
                            {"Monitra Setup",
                             ":/pictures/monitra.svg",
                             "A program nem ér el nyomtatóportot, semmit sem küld ki; próbához "
                             "a Monitra Szimulátor való.",
                             noPort,
                             false,
                             {}});
}
