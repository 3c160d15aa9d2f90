// The list of laws of a zone as it opens: the key, which the field and the files hold, and the name of the law beside
// it.
#pragma once

class QComboBox;

/// Has the opened list of `liste`, whose entries are keys, show the names beside them. What is chosen stays the key.
void NommeLois(QComboBox& liste);
