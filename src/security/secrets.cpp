// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/secrets.h"

#include <QLineEdit>

void secrets::wipe(QString &text)
{
    if (text.isDetached())
        text.fill(QChar());
    text.clear();
}

void secrets::wipe(QLineEdit &box)
{
    // The box lets go first, so that the text is ours alone and is overwritten in place.
    QString typed = box.text();
    box.setText({});
    wipe(typed);
}
