#include "Program.h"

int main(int argc, char** argv)
{
    return Zentor::Capture::RunRecorder(argc, argv);
}
