#include "apps/window_program.h"
#include "ports/register_memory.h"

int main(int argc, char** argv) {
  monitra::ports::RegisterMemory noPort;
  return monitra::apps::run(
      argc, argv,
      {"Monitra Setup",
       "Nincs elérhető nyomtatóport: a program semmit sem küld ki. Próbához a Monitra Szimulátor "
       "való.",
       noPort,
       {}});
}
