/* SPDX-FileCopyrightText: 2026 The PropertiesDialog authors */
/* SPDX-License-Identifier: MIT */

/*
 * A host in plain C: plain-host LOCALE QUEUE...
 *
 * Sets the locale as programs do: "C" not at all, "user" by setlocale(LC_ALL, ""), "encoding" by setlocale(LC_CTYPE, "").
 * Then opens the dialog of each QUEUE, "-" for the default printer. Prints its locale and two numbers before and after each
 * call, and what the call returned.
 */

#include <dlfcn.h>
#include <locale.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static void *library;

static void find(const char *name, void *function)
{
    void *symbol = dlsym(library, name);

    if (!symbol) {
        fprintf(stderr, "plain-host: %s\n", dlerror());
        exit(99);
    }
    memcpy(function, &symbol, sizeof symbol);
}

static void print_locale(void)
{
    printf("%s %.1f %.1f\n", setlocale(LC_ALL, NULL), 1.5, atof("2.5"));
    fflush(stdout);
}

int main(int argc, char **argv)
{
    int (*propertiesDialog)(void);
    int (*propertiesDialogFor)(const char *);
    int i;

    if (!strcmp(argv[1], "user"))
        setlocale(LC_ALL, "");
    else if (!strcmp(argv[1], "encoding"))
        setlocale(LC_CTYPE, "");
    library = dlopen("libPropertiesDialog.so.1", RTLD_NOW);
    if (!library) {
        fprintf(stderr, "plain-host: %s\n", dlerror());
        return 99;
    }
    find("propertiesDialog", &propertiesDialog);
    find("propertiesDialogFor", &propertiesDialogFor);

    print_locale();
    for (i = 2; i < argc; ++i) {
        printf("returned %d\n", strcmp(argv[i], "-") ? propertiesDialogFor(argv[i]) : propertiesDialog());
        print_locale();
    }
    return 0;
}
