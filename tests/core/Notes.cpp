#include "core/Notes.h"

#include <gtest/gtest.h>

TEST(Notes, ATextStandsOnceAndIsReferredToByNumber) {
    Notes notes;
    EXPECT_TRUE(notes.Vide());
    EXPECT_EQ(notes.Renvoi("Couple"), "");
    notes.Ajoute("Couple", "un");
    notes.Ajoute("Force", "été déjà dit");
    notes.Ajoute("Couple", "été déjà dit");
    notes.Ajoute("Couple", "un"); // of another cam
    EXPECT_EQ(notes.Renvoi("Couple"), " (1,2)");
    EXPECT_EQ(notes.Renvoi("Force"), " (2)");
    EXPECT_EQ(notes.Textes("Couple"), "(1) un\n(2) été déjà dit");
    EXPECT_EQ(notes.Lignes(), (std::vector<std::string>{"(1) un", "(2) été déjà dit"}));
    // Accented letters count once; a word longer than a line stands alone.
    EXPECT_EQ(notes.Lignes(12), (std::vector<std::string>{"(1) un", "(2) été déjà", "    dit"}));
    EXPECT_EQ(notes.Lignes(3).size(), 4U);
}
