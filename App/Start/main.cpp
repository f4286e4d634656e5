// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Application.h"

int main(int argc, char** argv)
{
    return Zentor::Desktop::RunApplication(argc, argv);
}
