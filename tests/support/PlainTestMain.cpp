#include "tests/support/TestStart.h"

int main(int argc, char** argv) { return startTests(argc, argv); }
