// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PASSWORDS_H
#define PASSWORDS_H

#include <QByteArray>
#include <QString>

#include <optional>

/**
 * The user name and password for a scheduler that wants them. They are kept in memory, for as long as the process
 * lives.
 *
 * To be used from the GUI thread only.
 */
namespace Passwords {

struct Credentials
{
    QString user;
    QString password;
};

/** What the user entered for @p server and it has not refused; nothing when the user was not asked. */
std::optional<Credentials> known(const QByteArray &server);

/**
 * Asks the user, in programs with windows by the prompt. Others use libcups' callback for this thread or the
 * terminal, except for background processes, which would be stopped.
 *
 * @param isRefused whether @p server refused what is known; that is forgotten.
 * @return whether there is an answer. False, without asking, for the rest of an action in which the user declined.
 */
bool ask(const QByteArray &server, bool isRefused);

/** Behaves for the rest of the action as if the user had declined. */
void decline();

/** Fills @p credentials, in which the user name is a proposal. @return false when the user declines. */
using Prompt = bool (*)(Credentials *credentials, bool isRefused);

/** The dialog of programs with windows; nothing here knows widgets. */
void setPrompt(Prompt prompt);

} // namespace Passwords

#endif
