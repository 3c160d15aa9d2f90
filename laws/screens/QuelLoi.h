// The choosers of a law to study: pictures drawn from the curves of the laws. `QuelLoi` shows the usual ones,
// `QuelLoiSpe` the special ones.
#pragma once

#include <QDialog>

class QGridLayout;
class QLabel;
struct ChoixLoi;

class QuelLoi : public QDialog {
    Q_OBJECT

public:
    /// @param nom "QuelLoi" or "QuelLoiSpe"
    explicit QuelLoi(const char* nom, QWidget* parent = nullptr);
    ~QuelLoi() override;

    /// The law that was chosen; none when the screen was left by `Quitter`.
    const ChoixLoi* Choisi() const { return choisi_; }

private:
    void AjouteImages(QGridLayout& grille);
    QWidget* FaitCoefficients();
    void MontreCoefficients(const ChoixLoi* choix);

    const ChoixLoi* choisi_ = nullptr;
    QLabel *coefAccel_ = nullptr, *coefVitesse_ = nullptr;
};
