// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef BACKGROUNDTHREAD_H
#define BACKGROUNDTHREAD_H

#include <functional>
#include <optional>
#include <thread>

/** Starts a thread that does not receive the host's signals. Nothing if the system has no more threads. */
std::optional<std::thread> startBackgroundThread(const std::function<void()> &function);

#endif
