#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
# SPDX-License-Identifier: MIT
"""Opens the properties dialog from a Python program without Qt: open-properties.py [QUEUE]"""

import ctypes
import subprocess
import sys

NAME = "libPropertiesDialog.so.1"


def load_library():
    """Loads the library from where the system looks, or from the prefix that pkg-config knows."""
    try:
        return ctypes.CDLL(NAME)
    except OSError:
        command = ["pkg-config", "--variable=libdir", "PropertiesDialog"]
        folder = subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()
        return ctypes.CDLL(folder + "/" + NAME)


library = load_library()
if len(sys.argv) > 1:
    saved = library.propertiesDialogFor(sys.argv[1].encode())
else:
    saved = library.propertiesDialog()  # of the default printer
print("The settings were saved." if saved else "Nothing was changed.")
