// SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
// SPDX-License-Identifier: MIT

#ifndef PPDFILE_H
#define PPDFILE_H

typedef struct ppd_file_s ppd_file_t;

/** The PPD file of a queue. */
namespace PpdFile {

/**
 * Fetches and opens the PPD file of @p queue.
 *
 * cupsGetPPD() is not used because it looks up the name of this machine, which takes long if it does not resolve, reads
 * from its own connection, which cannot be shut down, and accepts an incomplete file.
 *
 * @param isAbsent set to whether the scheduler answered that this user gets none; it need not be asked again then.
 * @return the file, to be closed with ppdClose(); null when there is none or it could not be fetched completely.
 */
ppd_file_t *fetch(const char *queue, bool *isAbsent);

} // namespace PpdFile

#endif
