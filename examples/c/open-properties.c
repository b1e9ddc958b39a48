/* SPDX-FileCopyrightText: 2026 The PropertiesDialog authors */
/* SPDX-License-Identifier: MIT */

/* Opens the properties dialog of the default printer from a plain C program without Qt. */

#include <dlfcn.h>
#include <stdio.h>
#include <string.h>

int main(void)
{
    int (*propertiesDialog)(void);
    void *library;
    void *symbol;

    library = dlopen("libPropertiesDialog.so.1", RTLD_NOW);
    symbol = library ? dlsym(library, "propertiesDialog") : NULL;
    if (!symbol) {
        fprintf(stderr, "open-properties: %s\n", dlerror());
        return 2;
    }

    /* C has no conversion from object pointers to function pointers, but POSIX guarantees the same representation. */
    memcpy(&propertiesDialog, &symbol, sizeof propertiesDialog);

    /* The library stays loaded: Qt cannot be unloaded from a running process. */
    puts(propertiesDialog() ? "The settings were saved." : "Nothing was changed.");
    return 0;
}
