#include "shell/qt/Entry.h"

int main(int argc, char** argv) { return tintora::RunEditor(argc, argv); }
