// The help window: contents and search at the left, the page at the right.
#pragma once

#include "help/screens/LivreAide.h"

#include <QTextCursor>
#include <QWidget>

#include <filesystem>
#include <vector>

class QAction;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTextBrowser;
class QTreeWidget;

class VisionneuseAide : public QWidget {
    Q_OBJECT

public:
    explicit VisionneuseAide(const std::filesystem::path& fichier, QWidget* parent = nullptr);

    const LivreAide& Livre() const { return livre_; }

    /// Shows the page of that name, the first one for an unknown name.
    void MontrePage(const QString& nom);

    /// Name of the page shown.
    QString Page() const;

protected:
    void changeEvent(QEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    QWidget* FaitSommaire();
    int LargeurSommaire() const;
    QWidget* FaitBarre();
    QAction* AjouteCommande(class QToolBar& barre, const char* nom, int texte,
                            const std::vector<QKeySequence>& touches);
    void RemplitSommaire();
    void PageChangee(const QUrl& adresse);
    void Habille();
    void AjusteImages();
    void Cherche(const QString& saisie);
    void MontreTrouvaille();
    void Surligne(const QString& saisie);
    void VaAuTrouve(int pas);
    void MontreSurlignes();

    LivreAide livre_;
    QLineEdit *recherche_, *trouver_;
    QStackedWidget* gauche_;
    QTreeWidget* sommaire_;
    QListWidget* trouvailles_;
    QTextBrowser* page_;
    std::vector<QTextCursor> trouves_; ///< places in the page that hold a word looked for
    int trouve_ = -1;                  ///< the one that was gone to last
};
