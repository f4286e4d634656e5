#include "Application.h"

int main(int argc, char** argv)
{
    return Zentor::Desktop::RunApplication(argc, argv);
}
