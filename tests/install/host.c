/* SPDX-FileCopyrightText: 2026 The PropertiesDialog authors */
/* SPDX-License-Identifier: MIT */

/* A host in plain C that includes the header and links the library. Without a display there is no dialog: 0. */

#include <PropertiesDialog/PropertiesDialog.h>

#include <stdio.h>

int main(void)
{
    int first = propertiesDialog();
    int second = propertiesDialog();

    printf("%d %d\n", first, second);
    return first == 0 && second == 0 ? 0 : 1;
}
