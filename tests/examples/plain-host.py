# SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
# SPDX-License-Identifier: MIT
"""The same host in Python: plain-host.py LOCALE QUEUE... The interpreter itself sets the encoding."""

import ctypes
import locale
import sys

library = ctypes.CDLL("libPropertiesDialog.so.1")
c = ctypes.CDLL(None)


def print_locale():
    number = ctypes.create_string_buffer(20)
    c.snprintf(number, 20, b"%.1f", ctypes.c_double(1.5))
    c.atof.restype = ctypes.c_double
    print(locale.setlocale(locale.LC_ALL), number.value.decode(), c.atof(b"2.5"), flush=True)


if sys.argv[1] == "user":
    locale.setlocale(locale.LC_ALL, "")
print_locale()
for queue in sys.argv[2:]:
    result = library.propertiesDialog() if queue == "-" else library.propertiesDialogFor(queue.encode())
    print("returned", result, flush=True)
    print_locale()
