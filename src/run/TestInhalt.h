// The driver of the document test: which record is handed to which test, and in which order.
//
// It sets Record and ZeilenNr and hands each record to its test, in passes whose order is part of the rule: structure
// records before the items that refer to them, items before conditions, attachments last. Nothing that a record test
// finds stops the driver.
#pragma once

namespace zepholt {

// All passes over the lines of a file that has passed the file-level tests.
void DokumentTesten();

} // namespace zepholt
