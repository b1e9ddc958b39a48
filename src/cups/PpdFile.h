// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PPDFILE_H
#define PPDFILE_H

typedef struct ppd_file_s ppd_file_t;

/** The PPD file of a queue as the scheduler has it. */
namespace PpdFile {

/**
 * Fetches and opens the PPD file of @p queue.
 *
 * cupsGetPPD() does that as well, but looks the name of this machine up, which takes long where it has none, reads from
 * a connection of its own, which cannot be shut down, and takes a part of the file for the whole.
 *
 * @param isAbsent set to whether the scheduler answered that there is none for this user; then it need not be asked
 *        again.
 * @return the file, to be closed with ppdClose(); null when there is none or it could not be fetched completely.
 */
ppd_file_t *fetch(const char *queue, bool *isAbsent);

} // namespace PpdFile

#endif
