// The about box.
#pragma once

#include <QDialog>

class Propos : public QDialog {
    Q_OBJECT

public:
    explicit Propos(QWidget* parent = nullptr);
};
