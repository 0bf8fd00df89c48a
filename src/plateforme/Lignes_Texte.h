#pragma once

#include <QString>
#include <QStringView>

#include <vector>

/// The lines of one text file. The text is held once; a line is a view into it, without its line end.
/// A line ends at CR LF or at LF; a last line without an end is a line; an empty text has no line.
class Lignes_Texte {
public:
    Lignes_Texte() = default;
    explicit Lignes_Texte(QString texte);

    // A copy shares the text, so its views stay those of the original.
    [[nodiscard]] std::size_t size() const { return lignes_.size(); }
    [[nodiscard]] bool empty() const { return lignes_.empty(); }
    [[nodiscard]] QStringView operator[](std::size_t rang) const { return lignes_[rang]; }
    [[nodiscard]] auto begin() const { return lignes_.begin(); }
    [[nodiscard]] auto end() const { return lignes_.end(); }

private:
    QString texte_;
    std::vector<QStringView> lignes_;
};

/// The line end of every file that the program writes.
inline constexpr QStringView fin_de_ligne = u"\r\n";
