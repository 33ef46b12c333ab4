// Paints a sheet of drawing primitives with the real canvas into a picture file, so that its pixels can be
// read.
//
//   canvas_probe FILE.ppm SCALE
//
// The sheet is 500 by 500 pixels of grey, times the scale; what stands where is told in test_drawing.py.

#include "appearance/drawing_primitives.h"
#include "appearance/print_rotated.h"
#include "appearance/round_window.h"
#include "qt/appearance/looks.h"
#include "qt/appearance/qt_canvas.h"
#include "qt/system/qt_worker.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QWidget>

namespace {

using namespace quill;

constexpr int Side = 500;

Rect Pixels(int x, int y, int width, int height) {
    const auto twips = [](int pixels) { return static_cast<float>(pixels) * TwipsPerPixel; };
    return {twips(x), twips(y), twips(width), twips(height)};
}

EruLabel LabelAt(int x, int y, int width, int height) {
    EruLabel label;
    label.Place = Pixels(x, y, width, height);
    label.Caption = "MMMM";
    label.ForeColor = Rgb(0, 0, 0);
    label.BackColor = Rgb(255, 255, 0);
    label.BorderColor = Rgb(255, 0, 0);
    return label;
}

void Paint(Canvas& canvas, const EruLabel& label) {
    PaintEruLabel(canvas, label, "DejaVu Sans", {});
}

void PaintRamps(Canvas& canvas) {
    DrawGradient(canvas, Pixels(0, 0, 50, 151), Rgb(0, 0, 0), RampKind::ContainerFrame);
    DrawGradient(canvas, Pixels(60, 0, 50, 151), Rgb(250, 100, 100), RampKind::Workspace);
    DrawGradient(canvas, Pixels(120, 0, 50, 151), Rgb(0, 0, 0), RampKind::ContainerFrameReversed);
    DrawGradient(canvas, Pixels(180, 0, 50, 301), Rgb(0, 0, 0), RampKind::WorkspaceDark);
}

void PaintLabels(Canvas& canvas) {
    EruLabel square = LabelAt(10, 320, 100, 30);
    square.BackStyle = 1;
    square.BorderWidth = 3;
    Paint(canvas, square);
    EruLabel glass = LabelAt(130, 320, 100, 30);
    glass.BackStyle = 1;
    glass.BorderWidth = 4;
    glass.BorderRadius = 8;
    glass.SetOpacity(0.5F);
    Paint(canvas, glass);
    for (int alignment = 0; alignment < 3; ++alignment) {
        EruLabel label = LabelAt(10, 360 + 30 * alignment, 220, 24);
        label.Alignment = static_cast<std::uint8_t>(alignment);
        Paint(canvas, label);
    }
    EruLabel cut = LabelAt(260, 320, 40, 24);
    cut.Caption = "MMMMMMMMMMMM";
    Paint(canvas, cut);
    EruLabel whole = LabelAt(260, 350, 40, 24);
    whole.Caption = cut.Caption;
    whole.AutoSize = true;
    Paint(canvas, whole);
    EruLabel system = LabelAt(260, 380, 60, 24);
    system.BackStyle = 1;
    system.BackColor = CodeOf(SystemColor::ButtonFace);
    system.ForeColor = CodeOf(SystemColor::ButtonText);
    Paint(canvas, system);
}

void PaintWindow(Canvas& canvas) {
    RoundWindow(canvas, Pixels(260, 0, 104, 104), 40, 4, 4);
    canvas.FillRect(Pixels(0, 0, Side, Side), Rgb(0, 0, 255));
    canvas.PopClip();
}

// A round box, and one that is filled row by row within a round clip.
void PaintRound(Canvas& canvas) {
    const Color blue = Rgb(0, 0, 255);
    const float radius = 12 * TwipsPerPixel;
    canvas.RoundRect(Pixels(250, 120, 50, 50), radius, blue, {});
    canvas.PushClip(Pixels(310, 120, 50, 50), radius);
    for (int row = 115; row < 175; ++row) canvas.FillRect(Pixels(305, row, 60, 1), blue);
    canvas.PopClip();
    canvas.RoundRect(Pixels(250, 180, 50, 50), radius, blue, {}, 0.5F);
}

// The same text without and with a halo, and with one again.
void PaintHalos(Canvas& canvas) {
    TextStyle style;
    style.Font = {"DejaVu Sans", 12};
    style.Ink = Rgb(255, 255, 255);
    canvas.Text(Pixels(315, 180, 50, 24), "Hag", style);
    style.Halo = true;
    canvas.Text(Pixels(315, 210, 50, 24), "Hag", style);
    canvas.Text(Pixels(315, 240, 50, 24), "Hag", style);
}

void PaintTurned(Canvas& canvas) {
    const auto print = [&](int x, int y, int angle) {
        const Rect at = Pixels(x, y, 0, 0);
        PrintRotated(canvas, "MMMMMMMM", at.Left, at.Top, "DejaVu Sans", 8, angle, 550, Rgb(0, 0, 0));
    };
    print(400, 200, 90);
    print(440, 20, 270);
    print(380, 300, 0);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const QApplication application(argc, argv);
    QtWorker worker;
    Looks looks({}, worker);
    const double scale = QByteArray(argv[2]).toDouble();
    QImage sheet((QSizeF(Side, Side) * scale).toSize(), QImage::Format_RGB32);
    sheet.setDevicePixelRatio(scale);
    sheet.fill(QColor(128, 128, 128));
    {
        QPainter painter(&sheet);
        QWidget surface;
        QtCanvas canvas(painter, surface, QRegion(0, 0, Side, Side), looks);
        PaintRamps(canvas);
        PaintLabels(canvas);
        PaintWindow(canvas);
        PaintRound(canvas);
        PaintHalos(canvas);
        PaintTurned(canvas);
    }
    worker.Finish();
    return sheet.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
