#pragma once

struct Poste;
class Saisie;
class QString;

// What the operator does with a QSO as a whole.

/// An entry of Liste_QSO was clicked, or selected by the program: it becomes Ligne_Selectionnee and fills the fields,
/// which stay disabled. During an edit only the target of the commit changes.
void Clic_Liste(Saisie &saisie, const QString &ligne_affichage);
/// A double click, after its click: the entry's fields open for an edit.
void Double_Clic_Liste(Poste &poste, Saisie &saisie, const QString &ligne_affichage);

/// Ajout_QSO: a deferred insertion, if an award is open.
void Commence_Insertion(Poste &poste, Saisie &saisie);
/// Annule_Saisie: removes Ligne_Selectionnee from the log of Dip_A after a question.
void Supprime_QSO(Poste &poste, Saisie &saisie);
/// Valide_A: checks the lengths, asks, stores the QSO of the fields and leaves the entry at Ind_A.
void Valide_QSO(Poste &poste, Saisie &saisie);
