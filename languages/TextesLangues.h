// Numbers of the texts of the language editor.
#pragma once

enum TextesLangues {
    TexteEnregistrerTraduction = 15,
    TexteRetourLangues = 13,
    TexteSupprimerLaLangue = 66, ///< followed by its name
    TexteCreerLaLangue = 68,     ///< followed by its name
    TexteLigne = 461,            ///< followed by the number of a line of the file
    TexteTitreLangues = 687,
    TexteLangues = 688,
    TexteNomLangue = 689,
    TexteNumero = 690,
    TexteTraduction = 691,
    TexteAutresLangues = 692,
    TexteSupprimerLangue = 693,
    TexteLangueLivree = 694,
    TexteLangueOfferte = 695,
    TexteATraduire = 696, ///< followed by their number

    TexteChercher = 959,
    TexteTrouves, ///< followed by their number
    TexteTrouvePrecedent,
    TexteTrouveSuivant,
    TexteProchain,
    TexteImporter,
    TexteExporter,
    TexteToutTraduit,
    TexteLangueCreee,       ///< followed by its name
    TexteLangueSupprimee,   ///< followed by its name
    TexteTraductionGardee,  ///< followed by the number of the text
    TexteGarderTraduction,  ///< question, followed by the wording
    TexteNomPris,           ///< followed by the name that stands in the way
    TexteNomTropLong,       ///< followed by the characters it may have
    TexteNomInvalide,       ///< which characters a name may have
    TexteImportRefuse,      ///< above the list of the faults
    TexteNumeroTexte = 976, ///< followed by the number of a text
    TexteLigneTitre,        ///< what the first line is to be
    TexteDeuxColonnes,      ///< what every line is to be
    TexteNumeroInconnu,     ///< no text has this number
    TexteNumeroDouble,      ///< followed by the line that has it first
    TexteTropLong,          ///< followed by the lengths
    TexteSansTouche,        ///< an accelerator is missing
    TexteToucheEnTrop,      ///< or one too many
    TexteEncodage,          ///< the file is not UTF-8
    TexteRienAImporter,     ///< no line has a wording
    TexteRemplacerTextes,   ///< question, followed by the number of texts that would be replaced
    TexteTextesImportes,    ///< followed by their number
    TexteFiltreLangue,      ///< of the file dialogues
};
