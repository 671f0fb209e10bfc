// The calculator panel: a length typed in micrometres, or an expression, read the way every
// numeric field of the library reads it, and shown back in nanometres and as the library
// prints lengths.
#include <QLineEdit>
#include <QPalette>

#include <cmath>
#include <memory>

#include "DemoRegistry.h"
#include "lxcomp/LxMisc.h"
#include "lxcomp/LxParser.h"
#include "ui_DemoCalculator.h"

namespace {

// A field holds a plain number or an expression; an expression that does not evaluate may
// still be a number the readers accept (a decimal comma, for example).
bool ReadLength(const QString& text, double* nanometres) {
  double value = 0.0;
  if (lx::IsExpression(text) && !lx::EvaluateExpression(text, &value)) {
    *nanometres = value * 1000.0;
    return std::isfinite(*nanometres);
  }
  return !lx::GetCoordinateNoMessage(text, nanometres);
}

// Red that stays readable on the palette's window colour, light or dark.
QColor ErrorColor(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128 ? QColor(255, 128, 128)
                                                           : QColor(190, 20, 20);
}

void ShowReading(Ui::DemoCalculator& ui) {
  const QString text = ui.EditInput->text();
  double nanometres = 0.0;
  if (text.trimmed().isEmpty() || !ReadLength(text, &nanometres)) {
    ui.LabelNanometres->clear();
    ui.LabelMicrons->clear();
    ui.LabelFeedback->setText(
        text.trimmed().isEmpty() ? QString() : lx::NotAValidNumberText(lx::ReaderCopy(text)));
    return;
  }
  wchar_t nanometreText[64];
  lx::PrintDouble(nanometres, nanometreText, 64);
  ui.LabelNanometres->setText(QString::fromWCharArray(nanometreText) + QStringLiteral(" nm"));
  QString micronText;
  lx::PrintMicrons(nanometres, &micronText);
  ui.LabelMicrons->setText(micronText);
  ui.LabelFeedback->clear();
}

QWidget* CreateCalculator(QWidget* parent, const QString& initialText) {
  auto* panel = new QWidget(parent);
  auto ui = std::make_shared<Ui::DemoCalculator>();
  ui->setupUi(panel);
  QPalette feedback = ui->LabelFeedback->palette();
  feedback.setColor(QPalette::WindowText, ErrorColor(panel->palette()));
  ui->LabelFeedback->setPalette(feedback);
  QObject::connect(ui->EditInput, &QLineEdit::textChanged, panel, [ui] { ShowReading(*ui); });
  ui->EditInput->setText(initialText);
  ShowReading(*ui);
  return panel;
}

}  // namespace

LXDEMO_REGISTER(Calculator) {
  DemoRegistry::Instance().Add(
      DemoPanel{QStringLiteral("Calculator"),
                [](DemoHost&, QWidget* parent) { return CreateCalculator(parent, QString()); }});
  DemoRegistry::Instance().Add(GalleryEntry{
      QStringLiteral("calculator-panel"),
      [](QWidget* parent) { return CreateCalculator(parent, QStringLiteral("2*sin(pi/4)+3^2")); }});
  DemoRegistry::Instance().Add(GalleryEntry{
      QStringLiteral("calculator-panel-invalid"),
      [](QWidget* parent) { return CreateCalculator(parent, QStringLiteral("12.5mm")); }});
}
