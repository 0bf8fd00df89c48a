// A text of char has no known encoding: "é" would be read in another one than it was written in.
#include <QString>

QString Texte_De_Char()
{
    return "été";
}
