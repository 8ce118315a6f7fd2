#include "cli/Program.h"

int main(int argc, char **argv) { return tessel::cli::run(argc, argv); }
