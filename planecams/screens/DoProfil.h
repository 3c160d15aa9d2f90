// The data screen of a plane cam with a translating follower: its zones are radii of the roller centre.
#pragma once

#include "cams/screens/SaisieCame.h"

class DoProfil : public SaisieCame {
    Q_OBJECT

public:
    /// Opens on the study record: empty for a new study, filled with the data of one that was read.
    explicit DoProfil(QWidget* parent = nullptr);

protected:
    bool ControleZone(const Zone& zone) override;
};
