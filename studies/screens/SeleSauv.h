// The save screen: which files of the study to write, under which name.
#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;

class SeleSauv : public QDialog {
    Q_OBJECT

public:
    explicit SeleSauv(QWidget* parent = nullptr);

signals:
    /// The study file was written, under the name that the record has now.
    void FichierEnregistre(const QString& chemin);

private:
    void Sauvegarde();

    QLineEdit* nom_;
    QCheckBox *donnees_, *points_, *scripts_;
};
