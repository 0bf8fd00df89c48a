#pragma once

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QProcess>
#include <QTimer>

#include <functional>

/// The print dialogue as an operator handles it, and the PDF that comes out.
namespace impression {

/// Runs `action`, and `geste` on the print dialogue that it opens.
inline void Pendant_Le_Dialogue(const std::function<void()> &action, const std::function<void(QPrintDialog &)> &geste)
{
    QTimer guetteur;
    guetteur.setInterval(5);
    QObject::connect(&guetteur, &QTimer::timeout, [&] {
        auto *choix = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        if (!choix)
            return;
        guetteur.stop();
        geste(*choix);
    });
    guetteur.start();
    action();
}

/// Chooses printing to a file, which stands last among the printers, and presses the button that prints.
inline void Choisit_Fichier(QPrintDialog &choix, const QString &pdf)
{
    auto *imprimantes = choix.findChild<QComboBox *>(QStringLiteral("printers"));
    imprimantes->setCurrentIndex(imprimantes->count() - 1);
    choix.findChild<QLineEdit *>(QStringLiteral("filename"))->setText(pdf);
    choix.accept();
}

/// The pages of a PDF, as text with its columns.
inline QStringList Pages(const QString &pdf)
{
    QProcess lecture;
    lecture.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-enc"),
                                                QStringLiteral("UTF-8"), pdf, QStringLiteral("-")});
    lecture.waitForFinished();
    QStringList pages = QString::fromUtf8(lecture.readAllStandardOutput()).split(u'\f');
    pages.removeLast();
    return pages;
}

/// The lines of all pages, without the empty ones.
inline QStringList Lignes_Ecrites(const QString &pdf)
{
    return Pages(pdf).join(QString()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace impression
