#include "demo/Drawing.h"

#include <utility>

namespace {

constexpr int EraserWidth = 14;
constexpr int CornerSize = 24; // of rounded rectangles

void SetColors(TCanvas* Canvas, TColor Line, TColor Fill)
{
    Canvas->Pen->Color = Line;
    Canvas->Brush->Color = Fill;
}

void DrawHouse(TCanvas* Canvas)
{
    SetColors(Canvas, clBlack, clCream);
    Canvas->Rectangle(80, 200, 220, 310);
    SetColors(Canvas, clBlack, clRed);
    Canvas->Polygon({{64, 204}, {150, 126}, {236, 204}});
    SetColors(Canvas, clBlack, clMaroon);
    Canvas->Rectangle(136, 246, 166, 310);
    SetColors(Canvas, clBlack, clSkyBlue);
    Canvas->Rectangle(96, 226, 124, 254);
    Canvas->Rectangle(178, 226, 206, 254);
    Canvas->Ellipse(138, 158, 162, 182);
}

TSharedPicture NewSheet(const TSize& Size)
{
    auto Sheet = std::make_shared<TBitmap>();
    Sheet->SetSize(Size.cx, Size.cy);
    Sheet->Canvas->Brush->Color = clWhite;
    Sheet->Canvas->FillRect({0, 0, Size.cx, Size.cy});
    return Sheet;
}

// A house in the sun.
TSharedPicture SampleSheet(const TSize& Size)
{
    TSharedPicture Sheet = NewSheet(Size);
    TCanvas* Canvas = Sheet->Canvas;
    Canvas->Pen->Width = 2;
    SetColors(Canvas, clBlack, clMoneyGreen);
    Canvas->Rectangle(-2, 310, Size.cx + 2, Size.cy + 2);
    SetColors(Canvas, clOlive, clYellow);
    Canvas->Ellipse(214, 34, 274, 94);
    DrawHouse(Canvas);
    SetColors(Canvas, clBlack, clOlive);
    Canvas->Rectangle(250, 262, 260, 322);
    SetColors(Canvas, clBlack, clGreen);
    Canvas->Ellipse(228, 190, 284, 278);
    return Sheet;
}

} // namespace

TDrawing::TDrawing(TPaintBox* Paper, TDrawingTools& Tools)
    : FPaper(Paper),
      FTools(Tools),
      FSheet(Paper->Width, Paper->Height),
      FPicture(SampleSheet(FSheet))
{
    Paper->ControlStyle = Paper->ControlStyle + TControlStyle{csOpaque};
    Paper->OnPaint = {this, &TDrawing::PaperPaint};
    Paper->OnMouseDown = {this, &TDrawing::PaperMouseDown};
    Paper->OnMouseMove = {this, &TDrawing::PaperMouseMove};
    Paper->OnMouseUp = {this, &TDrawing::PaperMouseUp};
}

void TDrawing::SetPicture(TSharedPicture Value)
{
    FPicture = std::move(Value);
    FPaper->Repaint();
}

void TDrawing::Clear()
{
    SetPicture(NewSheet(FSheet));
    OnChange(this);
}

void TDrawing::SetZoom(int Value)
{
    FZoom = Value;
    FPaper->SetBounds(FPaper->Left, FPaper->Top, FSheet.cx * FZoom / 100, FSheet.cy * FZoom / 100);
    FPaper->Repaint();
}

// ---- changes

// Whoever holds the picture as it was keeps it so.
TCanvas* TDrawing::BeginChange()
{
    auto Changed = std::make_shared<TBitmap>();
    Changed->Assign(FPicture.get());
    FPicture = std::move(Changed);
    return FPicture->Canvas;
}

void TDrawing::FinishChange()
{
    FPaper->Repaint();
    OnChange(this);
}

void TDrawing::SetPens(TCanvas* Canvas, int Scale) const
{
    Canvas->Pen->Style = FTools.LineStyle;
    Canvas->Pen->Width = std::max(1, FTools.LineWidth * Scale / 100);
    Canvas->Pen->Color = FTools.LineColor;
    // The style last: a colour makes a brush solid.
    if (FTools.FillColor != clNone)
        Canvas->Brush->Color = FTools.FillColor;
    else
        Canvas->Brush->Style = bsClear;
}

void TDrawing::ApplyTool(const TPoint& P)
{
    if (FTools.Tool == dtPickColor) {
        FTools.LineColor = FPicture->Canvas->Pixels[P.x][P.y];
        OnPick(this);
        return;
    }
    TCanvas* Canvas = BeginChange();
    if (FTools.Tool == dtFill) {
        Canvas->Brush->Color = FTools.FillColor == clNone ? clWhite : FTools.FillColor;
        Canvas->FloodFill(P.x, P.y, Canvas->Pixels[P.x][P.y], fsSurface);
    } else {
        Canvas->Font->Name = "Tahoma";
        Canvas->Font->Height = -20;
        Canvas->Font->Color = FTools.LineColor;
        Canvas->Brush->Style = bsClear;
        Canvas->TextOut(P.x, P.y, FTools.Text);
    }
    FinishChange();
}

void TDrawing::DrawFreely(const TPoint& From, const TPoint& To)
{
    TCanvas* Canvas = FPicture->Canvas;
    SetPens(Canvas, 100);
    Canvas->Pen->Style = psSolid;
    if (FTools.Tool == dtBrush)
        Canvas->Pen->Width = FTools.LineWidth * 2 + 4;
    if (FTools.Tool == dtEraser) {
        Canvas->Pen->Width = EraserWidth;
        Canvas->Pen->Color = clWhite;
    }
    Canvas->MoveTo(From.x, From.y);
    Canvas->LineTo(To.x, To.y);
    Canvas->LineTo(To.x + 1, To.y); // the last point of a line is not drawn
    FPaper->Repaint();
}

// From where the stroke began to where it is now.
void TDrawing::DrawShape(TCanvas* Canvas, int Scale) const
{
    const auto Scaled = [Scale](int Value) { return Value * Scale / 100; };
    const int X1 = Scaled(FStart.x);
    const int Y1 = Scaled(FStart.y);
    const int X2 = Scaled(FLast.x);
    const int Y2 = Scaled(FLast.y);
    SetPens(Canvas, Scale);
    switch (FTools.Tool) {
    case dtRectangle: Canvas->Rectangle(X1, Y1, X2, Y2); break;
    case dtRoundRectangle: Canvas->RoundRect(X1, Y1, X2, Y2, Scaled(CornerSize), Scaled(CornerSize)); break;
    case dtEllipse: Canvas->Ellipse(X1, Y1, X2, Y2); break;
    default: Canvas->MoveTo(X1, Y1); Canvas->LineTo(X2, Y2);
    }
}

// ---- the paper

TPoint TDrawing::OnSheet(int X, int Y) const
{
    return {X * 100 / FZoom, Y * 100 / FZoom};
}

void TDrawing::PaperPaint(TObject*)
{
    TBitmap* Sheet = FPicture.get();
    if (FZoom == 100)
        FPaper->Canvas->Draw(0, 0, Sheet);
    else
        FPaper->Canvas->StretchDraw({0, 0, FPaper->Width, FPaper->Height}, Sheet);
    if (FDrawing && !DrawsFreely())
        DrawShape(FPaper->Canvas, FZoom);
}

void TDrawing::PaperMouseDown(TObject*, TMouseButton Button, TShiftState, int X, int Y)
{
    if (Button != mbLeft)
        return;
    const TPoint P = OnSheet(X, Y);
    if (FTools.Tool >= dtFill && FTools.Tool <= dtPickColor) {
        ApplyTool(P);
        return;
    }
    FDrawing = true;
    FStart = P;
    FLast = P;
    if (DrawsFreely()) {
        BeginChange();
        DrawFreely(P, P);
    }
}

void TDrawing::PaperMouseMove(TObject*, TShiftState, int X, int Y)
{
    if (!FDrawing)
        return;
    const TPoint From = std::exchange(FLast, OnSheet(X, Y));
    if (DrawsFreely())
        DrawFreely(From, FLast);
    else
        FPaper->Repaint();
}

void TDrawing::PaperMouseUp(TObject*, TMouseButton Button, TShiftState, int, int)
{
    if (Button != mbLeft || !std::exchange(FDrawing, false))
        return;
    if (!DrawsFreely())
        DrawShape(BeginChange(), 100);
    FinishChange();
}
