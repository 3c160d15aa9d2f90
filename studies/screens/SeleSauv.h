// The save screen: which files of the study to write, under which name.
#pragma once

#include <QDialog>

#include <functional>

class QCheckBox;
class QLineEdit;

class SeleSauv : public QDialog {
    Q_OBJECT

public:
    /// @param metAJour calculates where the results are those of other data; false after a box that says why it cannot.
    ///        Asked before points or scripts are written.
    explicit SeleSauv(std::function<bool()> metAJour, QWidget* parent = nullptr);

signals:
    /// The study file was written, under the name that the record has now.
    void FichierEnregistre(const QString& chemin);

private:
    void Sauvegarde();

    std::function<bool()> metAJour_;
    QLineEdit* nom_;
    QCheckBox *donnees_, *points_, *scripts_;
};
