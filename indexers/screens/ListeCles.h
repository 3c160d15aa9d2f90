// A list of names, as the calculators use it: Return goes on to the next field, the wheel turns nothing by accident,
// and a list of catalogue keys lets a new one be typed.
#pragma once

#include <QComboBox>

#include <string>
#include <vector>

class ListeCles : public QComboBox {
    Q_OBJECT

public:
    /// @param nouvelle whether a key that the list does not have may be typed
    ListeCles(const char* nom, bool nouvelle, QWidget* parent = nullptr);

    /// Offers these keys; what stands in the field stays.
    void Offre(const std::vector<std::string>& cles);

    std::string Cle() const;
    void Montre(const std::string& cle);

signals:
    void Choisie(); ///< a key of the list was chosen, or typed
    void Suivant(); ///< Return was pressed

protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
};
