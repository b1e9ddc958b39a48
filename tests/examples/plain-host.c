/* SPDX-FileCopyrightText: 2026 The PropertiesDialog authors */
/* SPDX-License-Identifier: MIT */

/*
 * A host in plain C: plain-host LOCALE CALLS [QUEUE]
 *
 * Sets the locale as programs do: "C" not at all, "user" by setlocale(LC_ALL, ""), "encoding" by setlocale(LC_CTYPE, "").
 * Then opens the dialog CALLS times, that of the default printer or of a queue, and prints before and after each call its
 * locale and a number, and what each call returned.
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
    int calls = argc > 2 ? atoi(argv[2]) : 0;

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
    while (calls-- > 0) {
        printf("returned %d\n", argc > 3 ? propertiesDialogFor(argv[3]) : propertiesDialog());
        print_locale();
    }
    return 0;
}
