// Text numbers that the capacity calculators share, in one place.
#pragma once

enum TextesIndexeurs {
    TexteLoiSansFin = 843, ///< a law file that no lift of 1 ends
};
