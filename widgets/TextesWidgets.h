// Numbers of the texts that only the widgets use, those added last.
#pragma once

enum TextesWidgets {
    TexteEnregistrerCsv = 935,
    TexteTableCsv = 936,
};
