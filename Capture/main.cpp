// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Program.h"

int main(int argc, char** argv)
{
    return Zentor::Capture::RunRecorder(argc, argv);
}
