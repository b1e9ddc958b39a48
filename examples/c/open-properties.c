/* SPDX-FileCopyrightText: 2026 The PropertiesDialog authors */
/* SPDX-License-Identifier: MIT */

/* Opens the properties dialog from a plain C program without Qt: open-properties [QUEUE] */

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* Stores the address of a function of the library in *function, which is a pointer to such a function. */
static void find(void *library, const char *name, void *function)
{
    void *symbol = library ? dlsym(library, name) : NULL;

    if (!symbol) {
        fprintf(stderr, "open-properties: %s\n", dlerror());
        exit(2);
    }
    /* C has no conversion from object pointers to function pointers, but POSIX guarantees the same representation. */
    memcpy(function, &symbol, sizeof symbol);
}

int main(int argc, char **argv)
{
    int (*propertiesDialog)(void);
    int (*propertiesDialogFor)(const char *);
    int saved;

    /* The library stays loaded: Qt cannot be unloaded from a running process. */
    void *library = dlopen("libPropertiesDialog.so.1", RTLD_NOW);

    find(library, "propertiesDialog", &propertiesDialog);
    find(library, "propertiesDialogFor", &propertiesDialogFor);
    saved = argc > 1 ? propertiesDialogFor(argv[1]) : propertiesDialog(); /* of the default printer */
    puts(saved ? "The settings were saved." : "Nothing was changed.");
    return 0;
}
