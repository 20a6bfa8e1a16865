#include "controls/beschriftung.h"

#include <QFontMetrics>

#include "palette.h"

QPalette Steinpalette() {
  QPalette palette{QColor(kStein)};
  for (const auto grund : {QPalette::Base, QPalette::ToolTipBase})
    palette.setColor(grund, QColor(kPapierweiss));
  for (const auto schrift :
       {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::ToolTipText})
    palette.setColor(QPalette::Active, schrift, QColor(kSchriftfarbe));
  palette.setColor(QPalette::Highlight, QColor(kAuswahl));
  palette.setColor(QPalette::HighlightedText, QColor(kPapierweiss));
  return palette;
}

QFont Schrift(double punkt, bool fett) {
  QFont schrift(QStringList{"Arial", "Liberation Sans"});  // Both have the same letter widths.
  schrift.setPixelSize(static_cast<int>(Massstab() * punkt * 96 / 72));
  schrift.setBold(fett);
  return schrift;
}

Beschriftung::Beschriftung(QWidget *eltern, const Texteintrag &eintrag)
    : QLabel(eltern), schrift_(Schrift(eintrag.punkt, eintrag.fett)) {
  setObjectName(eintrag.name);
  setGeometry(Rechteck(eintrag.lage));
  setTextFormat(Qt::PlainText);
  setAlignment(eintrag.ausrichtung);
  setWordWrap(eintrag.umbruch);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  SetzeFarbe(eintrag.farbe);
  ZeigeText(eintrag.text);
}

void Beschriftung::ZeigeText(const std::string &text, int freieZeilen) {
  QString ganz = QString::fromStdString(text).remove('\r');
  ganz.remove(500, ganz.size() - 1000);  // No label shows more, and measuring takes long.
  const int kleinste = schrift_.pixelSize() * 85 / 100;  // Smaller is hard to read.
  QFont schrift = schrift_;
  setFont(schrift);
  if (!Passt(Umbrochen(ganz)))
    resize(width(), height() + freieZeilen * fontMetrics().lineSpacing());
  while (!Passt(Umbrochen(ganz)) && schrift.pixelSize() > kleinste) {
    schrift.setPixelSize(schrift.pixelSize() - 1);
    setFont(schrift);
  }
  QString gezeigt = Umbrochen(ganz);
  int zeilen = wordWrap() ? height() / fontMetrics().lineSpacing() : 1;
  for (; zeilen > 0 && !Passt(gezeigt); --zeilen)
    gezeigt = Umbrochen(Gekuerzt(ganz, zeilen * width()));
  setText(gezeigt);
}

bool Beschriftung::Passt(const QString &text) const {
  const int umbruch = wordWrap() ? Qt::TextWordWrap : 0;
  const QRect bedarf = fontMetrics().boundingRect(rect(), umbruch, text);
  return bedarf.width() <= width() && bedarf.height() <= height();
}

QString Beschriftung::Umbrochen(const QString &text) const {
  if (!wordWrap())
    return text;
  QString umbrochen;
  QString wort;
  for (const QChar zeichen : text) {
    wort = zeichen.isSpace() ? QString() : wort + zeichen;
    if (fontMetrics().horizontalAdvance(wort) > width()) {
      umbrochen += u'\n';
      wort = zeichen;
    }
    umbrochen += zeichen;
  }
  return umbrochen;
}

QString Beschriftung::Gekuerzt(const QString &text, int breite) const {
  QStringList zeilen = text.split('\n');
  for (QString &zeile : zeilen)
    zeile = fontMetrics().elidedText(zeile, Qt::ElideMiddle, breite);
  return zeilen.join('\n');
}

void Beschriftung::SetzeFarbe(QRgb farbe) {
  QPalette palette = this->palette();
  palette.setColor(QPalette::WindowText, QColor(farbe));
  setPalette(palette);
}

void NeueLinie(QWidget *eltern, const Twips &lage, int dicke, QRgb farbe) {
  auto *linie = new QWidget(eltern);
  const QRect strecke = Rechteck(lage);
  linie->setGeometry({strecke.topLeft(), strecke.size().expandedTo({dicke, dicke})});
  linie->setPalette(QPalette(QColor(farbe)));
  linie->setAutoFillBackground(true);
  linie->setAttribute(Qt::WA_TransparentForMouseEvents);
}
