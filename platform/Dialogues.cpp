#include "platform/Dialogues.h"

namespace {

class DialoguesMuets final : public Dialogues {
public:
    void Message(Icone, const std::string&, const std::string&) override {}
    bool Question(const std::string&) override { return false; }
    std::optional<std::string> Saisie(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
    std::optional<std::filesystem::path> FichierAOuvrir(const DemandeFichier&) override { return {}; }
    std::optional<std::filesystem::path> FichierASauver(const DemandeFichier&) override { return {}; }
};

DialoguesMuets muets;
Dialogues* enUsage = &muets;

} // namespace

Dialogues& LesDialogues() {
    return *enUsage;
}

InstalleDialogues::InstalleDialogues(Dialogues& nouveaux) : anciens_(enUsage) {
    enUsage = &nouveaux;
}

InstalleDialogues::~InstalleDialogues() {
    enUsage = anciens_;
}
