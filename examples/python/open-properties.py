#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
# SPDX-License-Identifier: MIT
"""Opens the properties dialog of the default printer from a Python program that knows nothing of Qt."""

import ctypes

library = ctypes.CDLL("libPropertiesDialog.so.1")
saved = library.propertiesDialog()
print("The settings were saved." if saved else "Nothing was changed.")
