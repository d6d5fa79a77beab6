#pragma once

#include "Prompts.h"

class QWidget;

// The recovery dialog at start-up: a list of the documents whose unsaved changes were kept when
// the program last ended without a clean exit (name, time, original file), with Open (the one
// chosen), Discard All and Later (closing the dialog also means Later).
RecoveryAnswer askRecoveryInDialog(const QList<RecoveryOffer> &offers, QWidget *parent);
