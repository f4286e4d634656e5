#include "Application.h"

int main(int argc, char** argv)
{
    return Zentor::App::RunApplication(argc, argv);
}
