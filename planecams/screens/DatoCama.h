// The data screen of a plane cam with an oscillating arm: geometry and speed, masses, forces, then the zones one by
// one.
#pragma once

#include "cams/screens/SaisieCame.h"

class DatoCama : public SaisieCame {
    Q_OBJECT

public:
    /// Opens on the study record: empty for a new study, filled with the data of one that was read.
    explicit DatoCama(QWidget* parent = nullptr);
};
