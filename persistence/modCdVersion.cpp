#include "persistence/modCdVersion.h"

#include <QDir>
#include <QFileInfo>

#include "platform/modExistiertDatei.h"
#include "platform/pfade.h"

QString Datenpfad(const QString &name) {
  const QString ordner =
      spiel.DatenordnerAktiv ? QString::fromStdString(spiel.Datenordner) : Ressourcenordner();
  return MitBackslash(ordner) + name;
}

QString Dialogordner() {
  const QString ordner = QString::fromStdString(spiel.Datenordner);
  return ordner.isEmpty() || QDir().mkpath(ordner) ? ordner : QFileInfo(ordner).path();
}

void LegeDatenordnerFest(Ansicht &ansicht, const QString &wurzel) {
  if (wurzel.isEmpty()) {
    ansicht.Melde(MeldungKeineFestplatte);
    return;
  }
  const QString ordner = MitBackslash(wurzel) + "nachtkammern";
  spiel.DatenordnerAktiv = true;
  spiel.Datenordner = ordner.toStdString();
  if (!ExistiertDatei(ordner))
    LegeDatenordnerAn(ansicht, ordner);
}

void LegeDatenordnerAn(Ansicht &ansicht, const QString &pfad) {
  if (QDir().mkdir(pfad))
    spiel.DatenordnerAktiv = true;
  else
    ansicht.Melde(MeldungOrdnerFehlgeschlagen);
}
