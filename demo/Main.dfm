object MainForm: TMainForm
  Left = 200
  Top = 120
  BorderIcons = [biSystemMenu, biMinimize]
  BorderStyle = bsSingle
  Caption = 'Tessary showcase'
  ClientHeight = 604
  ClientWidth = 752
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'Tahoma'
  Font.Style = []
  OldCreateOrder = False
  Position = poScreenCenter
  ShowHint = True
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 13
  object Label1: TLabel
    Left = 12
    Top = 75
    Width = 232
    Height = 13
    AutoSize = False
    Caption = 'Panels: outer bevel by inner bevel'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Line16: TBevel
    Left = 12
    Top = 91
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Label2: TLabel
    Left = 72
    Top = 98
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'none'
  end
  object Label3: TLabel
    Left = 132
    Top = 98
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'lowered'
  end
  object Label4: TLabel
    Left = 192
    Top = 98
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'raised'
  end
  object Label5: TLabel
    Left = 12
    Top = 126
    Width = 27
    Height = 13
    Caption = 'none'
  end
  object Label6: TLabel
    Left = 12
    Top = 166
    Width = 42
    Height = 13
    Caption = 'lowered'
  end
  object Label7: TLabel
    Left = 12
    Top = 206
    Width = 33
    Height = 13
    Caption = 'raised'
  end
  object Label8: TLabel
    Left = 260
    Top = 75
    Width = 232
    Height = 13
    AutoSize = False
    Caption = 'Panels: any of the four sides'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Line17: TBevel
    Left = 260
    Top = 91
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Label9: TLabel
    Left = 260
    Top = 98
    Width = 33
    Height = 13
    Caption = 'bevels'
  end
  object Label10: TLabel
    Left = 260
    Top = 166
    Width = 62
    Height = 13
    Caption = 'border lines'
  end
  object Label11: TLabel
    Left = 508
    Top = 75
    Width = 232
    Height = 13
    AutoSize = False
    Caption = 'Panels: places of the caption'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Line18: TBevel
    Left = 508
    Top = 91
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Label12: TLabel
    Left = 508
    Top = 98
    Width = 72
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'left'
  end
  object Label13: TLabel
    Left = 588
    Top = 98
    Width = 72
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'centre'
  end
  object Label14: TLabel
    Left = 668
    Top = 98
    Width = 72
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'right'
  end
  object Label15: TLabel
    Left = 12
    Top = 243
    Width = 232
    Height = 13
    AutoSize = False
    Caption = 'Labels'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Line19: TBevel
    Left = 12
    Top = 259
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Sample1: TkelLabel
    Left = 12
    Top = 270
    Width = 72
    Height = 25
    Caption = 'Raised'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clBtnFace
    Font.Height = -21
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
    TextStyle = tsRaised
  end
  object Sample2: TkelLabel
    Left = 148
    Top = 270
    Width = 83
    Height = 25
    Caption = #1054#1090#1084#1077#1085#1072
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -21
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
    TextStyle = tsRaised
  end
  object Sample3: TkelLabel
    Left = 12
    Top = 302
    Width = 101
    Height = 25
    Caption = 'Recessed'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clBtnFace
    Font.Height = -21
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Sample4: TkelLabel
    Left = 148
    Top = 302
    Width = 65
    Height = 25
    Caption = 'Gr'#246#223'e'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -21
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Sample5: TkelLabel
    Left = 12
    Top = 334
    Width = 53
    Height = 25
    Caption = 'Plain'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -21
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
    TextStyle = tsNone
  end
  object Sample6: TkelLabel
    Left = 148
    Top = 334
    Width = 51
    Height = 25
    Caption = #321#243'd'#378
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -21
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
    TextStyle = tsNone
  end
  object Sample7: TkelLabel
    Left = 12
    Top = 366
    Width = 92
    Height = 25
    Caption = 'Disabled'
    Enabled = False
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -21
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Sample8: TkelLabel
    Left = 148
    Top = 366
    Width = 79
    Height = 25
    Caption = #268'e'#353'tina'
    Enabled = False
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -21
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Label16: TLabel
    Left = 260
    Top = 243
    Width = 232
    Height = 13
    AutoSize = False
    Caption = 'Speed buttons: layouts'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Line20: TBevel
    Left = 260
    Top = 259
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object LayoutButton1: TkelSpeedButton
    Left = 260
    Top = 268
    Width = 112
    Height = 36
    Hint = 'Glyph left|blGlyphLeft: the glyph stands left of the caption'
    Caption = '&Back'
    Flat = False
    GlyphIndex = 9
    Glyphs = LargeGlyphs
    OnClick = ToolClick
  end
  object LayoutButton2: TkelSpeedButton
    Left = 380
    Top = 268
    Width = 112
    Height = 36
    Hint = 'Glyph right|blGlyphRight: the glyph stands right of the caption'
    Caption = '&Forward'
    Flat = False
    GlyphIndex = 10
    Glyphs = LargeGlyphs
    Layout = blGlyphRight
    OnClick = ToolClick
  end
  object LayoutButton3: TkelSpeedButton
    Left = 260
    Top = 312
    Width = 112
    Height = 52
    Hint = 'Glyph on top|blGlyphTop: the glyph stands above the caption'
    Caption = '&Print'
    Flat = False
    GlyphIndex = 3
    Glyphs = LargeGlyphs
    Layout = blGlyphTop
    OnClick = ToolClick
  end
  object LayoutButton4: TkelSpeedButton
    Left = 380
    Top = 312
    Width = 112
    Height = 52
    Hint = 'Glyph below|blGlyphBottom: the glyph stands below the caption'
    Caption = '&Mail'
    Flat = False
    GlyphIndex = 8
    Glyphs = LargeGlyphs
    Layout = blGlyphBottom
    OnClick = ToolClick
  end
  object PlainButton: TkelSpeedButton
    Left = 260
    Top = 372
    Width = 232
    Height = 24
    Hint = 'Only a caption|A button without a strip shows its caption'
    Caption = 'Only a &caption'
    Flat = False
    GlyphIndex = 0
    OnClick = ToolClick
  end
  object Label17: TLabel
    Left = 508
    Top = 243
    Width = 232
    Height = 13
    AutoSize = False
    Caption = 'Speed buttons: states'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Line21: TBevel
    Left = 508
    Top = 259
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Label18: TLabel
    Left = 568
    Top = 266
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'up'
  end
  object Label19: TLabel
    Left = 628
    Top = 266
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'down'
  end
  object Label20: TLabel
    Left = 688
    Top = 266
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'disabled'
  end
  object Label21: TLabel
    Left = 508
    Top = 294
    Width = 18
    Height = 13
    Caption = 'flat'
  end
  object Label22: TLabel
    Left = 508
    Top = 334
    Width = 33
    Height = 13
    Caption = 'raised'
  end
  object Label23: TLabel
    Left = 508
    Top = 374
    Width = 53
    Height = 13
    Caption = 'captioned'
  end
  object StateButton1: TkelSpeedButton
    Left = 568
    Top = 284
    Width = 52
    Height = 32
    Hint = 'Up|A flat button gets its frame from the pointer'
    Flat = True
    GlyphIndex = 7
    Glyphs = LargeGlyphs
    OnClick = ToolClick
  end
  object StateButton2: TkelSpeedButton
    Left = 628
    Top = 284
    Width = 52
    Height = 32
    Hint = 
      'Down|A flat button gets its frame from the pointer, and this one' +
      ' is a switch'
    AllowAllUp = True
    GroupIndex = 21
    Down = True
    Flat = True
    GlyphIndex = 7
    Glyphs = LargeGlyphs
    OnClick = ToolClick
  end
  object StateButton3: TkelSpeedButton
    Left = 688
    Top = 284
    Width = 52
    Height = 32
    Hint = 
      'Disabled|A flat button gets its frame from the pointer, and this' +
      ' one cannot be clicked'
    Enabled = False
    Flat = True
    GlyphIndex = 7
    Glyphs = LargeGlyphs
    OnClick = ToolClick
  end
  object StateButton4: TkelSpeedButton
    Left = 568
    Top = 324
    Width = 52
    Height = 32
    Hint = 'Up|A raised button always has a frame'
    Flat = False
    GlyphIndex = 6
    Glyphs = LargeGlyphs
    OnClick = ToolClick
  end
  object StateButton5: TkelSpeedButton
    Left = 628
    Top = 324
    Width = 52
    Height = 32
    Hint = 
      'Down|A raised button always has a frame, and this one is a switc' +
      'h'
    AllowAllUp = True
    GroupIndex = 22
    Down = True
    Flat = False
    GlyphIndex = 6
    Glyphs = LargeGlyphs
    OnClick = ToolClick
  end
  object StateButton6: TkelSpeedButton
    Left = 688
    Top = 324
    Width = 52
    Height = 32
    Hint = 
      'Disabled|A raised button always has a frame, and this one cannot' +
      ' be clicked'
    Enabled = False
    Flat = False
    GlyphIndex = 6
    Glyphs = LargeGlyphs
    OnClick = ToolClick
  end
  object StateButton7: TkelSpeedButton
    Left = 568
    Top = 364
    Width = 52
    Height = 32
    Hint = 'Up|Glyph and caption'
    Caption = 'Bold'
    Flat = True
    GlyphIndex = 15
    Glyphs = ToolGlyphs
    OnClick = ToolClick
  end
  object StateButton8: TkelSpeedButton
    Left = 628
    Top = 364
    Width = 52
    Height = 32
    Hint = 'Down|Glyph and caption, and this one is a switch'
    AllowAllUp = True
    GroupIndex = 23
    Down = True
    Caption = 'Bold'
    Flat = True
    GlyphIndex = 15
    Glyphs = ToolGlyphs
    OnClick = ToolClick
  end
  object StateButton9: TkelSpeedButton
    Left = 688
    Top = 364
    Width = 52
    Height = 32
    Hint = 'Disabled|Glyph and caption, and this one cannot be clicked'
    Caption = 'Bold'
    Enabled = False
    Flat = True
    GlyphIndex = 15
    Glyphs = ToolGlyphs
    OnClick = ToolClick
  end
  object Label24: TLabel
    Left = 12
    Top = 411
    Width = 232
    Height = 13
    AutoSize = False
    Caption = 'Shapes'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Line22: TBevel
    Left = 12
    Top = 427
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Shape1: TkelShape
    Left = 12
    Top = 436
    Width = 72
    Height = 60
    Brush.Color = clInfoBk
    Pen.Color = clBtnShadow
  end
  object Shape2: TkelShape
    Left = 92
    Top = 436
    Width = 72
    Height = 60
    Brush.Color = clWindow
    Pen.Color = clHighlight
    Pen.Width = 2
    Shape = stRoundRect
  end
  object Shape3: TkelShape
    Left = 172
    Top = 436
    Width = 72
    Height = 60
    Brush.Color = clHighlight
    Pen.Color = clHighlight
    Shape = stEllipse
  end
  object Shape4: TkelShape
    Left = 12
    Top = 504
    Width = 72
    Height = 60
    Brush.Color = clHighlight
    Pen.Color = clHighlight
    Shape = stSquare
  end
  object Shape5: TkelShape
    Left = 92
    Top = 504
    Width = 72
    Height = 60
    Brush.Color = clInfoBk
    Pen.Color = clBtnShadow
    Shape = stRoundSquare
  end
  object Shape6: TkelShape
    Left = 172
    Top = 504
    Width = 72
    Height = 60
    Brush.Color = clWindow
    Pen.Color = clHighlight
    Pen.Width = 2
    Shape = stCircle
  end
  object Label25: TLabel
    Left = 260
    Top = 411
    Width = 232
    Height = 13
    AutoSize = False
    Caption = 'Glyph strip'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Line23: TBevel
    Left = 260
    Top = 427
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object CellLabel: TLabel
    Left = 372
    Top = 436
    Width = 67
    Height = 13
    Caption = 'GlyphIndex 0'
  end
  object CellButton: TkelSpeedButton
    Left = 372
    Top = 460
    Width = 36
    Height = 36
    Hint = 'The cell on a button|A button that is normal'
    Flat = True
    GlyphIndex = 0
    Glyphs = ToolGlyphs
  end
  object CellLatched: TkelSpeedButton
    Left = 414
    Top = 460
    Width = 36
    Height = 36
    Hint = 'The cell on a button|A button that is latched'
    GroupIndex = 30
    Down = True
    Flat = True
    GlyphIndex = 0
    Glyphs = ToolGlyphs
  end
  object CellDisabled: TkelSpeedButton
    Left = 456
    Top = 460
    Width = 36
    Height = 36
    Hint = 'The cell on a button|A button that is disabled'
    Enabled = False
    Flat = True
    GlyphIndex = 0
    Glyphs = ToolGlyphs
  end
  object Label26: TLabel
    Left = 508
    Top = 411
    Width = 232
    Height = 13
    AutoSize = False
    Caption = 'Try it'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clHighlight
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Line24: TBevel
    Left = 508
    Top = 427
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object FlatSwitch: TkelSpeedButton
    Left = 652
    Top = 436
    Width = 88
    Height = 21
    Hint = 'Flat|The samples have a frame only under the pointer'
    AllowAllUp = True
    GroupIndex = 40
    Down = True
    Caption = 'Flat'
    Flat = False
    GlyphIndex = 0
    OnClick = SwitchClick
  end
  object EnabledSwitch: TkelSpeedButton
    Left = 652
    Top = 461
    Width = 88
    Height = 21
    Hint = 'Enabled|The samples can be clicked'
    AllowAllUp = True
    GroupIndex = 41
    Down = True
    Caption = 'Enabled'
    Flat = False
    GlyphIndex = 0
    OnClick = SwitchClick
  end
  object CaptionSwitch: TkelSpeedButton
    Left = 652
    Top = 486
    Width = 88
    Height = 21
    Hint = 'Caption|The samples show their captions'
    AllowAllUp = True
    GroupIndex = 42
    Down = True
    Caption = 'Caption'
    Flat = False
    GlyphIndex = 0
    OnClick = SwitchClick
  end
  object AllUpSwitch: TkelSpeedButton
    Left = 652
    Top = 511
    Width = 88
    Height = 21
    Hint = 'AllowAllUp|Both samples may be up'
    AllowAllUp = True
    GroupIndex = 43
    Down = True
    Caption = 'All up'
    Flat = False
    GlyphIndex = 0
    OnClick = SwitchClick
  end
  object LayoutLeft: TkelSpeedButton
    Left = 508
    Top = 540
    Width = 52
    Height = 24
    Hint = 'Left|Where the samples have their glyph'
    GroupIndex = 50
    Caption = 'Left'
    Flat = False
    GlyphIndex = 0
    OnClick = LayoutClick
  end
  object LayoutRight: TkelSpeedButton
    Tag = 1
    Left = 568
    Top = 540
    Width = 52
    Height = 24
    Hint = 'Right|Where the samples have their glyph'
    GroupIndex = 50
    Caption = 'Right'
    Flat = False
    GlyphIndex = 0
    OnClick = LayoutClick
  end
  object LayoutTop: TkelSpeedButton
    Tag = 2
    Left = 628
    Top = 540
    Width = 52
    Height = 24
    Hint = 'Top|Where the samples have their glyph'
    GroupIndex = 50
    Down = True
    Caption = 'Top'
    Flat = False
    GlyphIndex = 0
    OnClick = LayoutClick
  end
  object LayoutBottom: TkelSpeedButton
    Tag = 3
    Left = 688
    Top = 540
    Width = 52
    Height = 24
    Hint = 'Bottom|Where the samples have their glyph'
    GroupIndex = 50
    Caption = 'Bottom'
    Flat = False
    GlyphIndex = 0
    OnClick = LayoutClick
  end
  object StandardBar: TkelPanel
    Left = 0
    Top = 0
    Width = 752
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    Align = alTop
    TabOrder = 0
    object Line1: TBevel
      Left = 4
      Top = 6
      Width = 3
      Height = 20
      Style = bsRaised
    end
    object NewButton: TkelSpeedButton
      Left = 12
      Top = 4
      Width = 24
      Height = 24
      Hint = 'New|Starts a new document'
      Flat = True
      GlyphIndex = 0
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object OpenButton: TkelSpeedButton
      Left = 36
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Open|Opens a document'
      Flat = True
      GlyphIndex = 1
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object SaveButton: TkelSpeedButton
      Left = 60
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Save|Saves the document'
      Flat = True
      GlyphIndex = 2
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line2: TBevel
      Left = 87
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object PrintButton: TkelSpeedButton
      Left = 92
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Print|Prints the document'
      Flat = True
      GlyphIndex = 3
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object PreviewButton: TkelSpeedButton
      Left = 116
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Print preview|Shows the document as it will be printed'
      Flat = True
      GlyphIndex = 4
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object SpellingButton: TkelSpeedButton
      Left = 140
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Spelling|Checks the spelling'
      Flat = True
      GlyphIndex = 5
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line3: TBevel
      Left = 167
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object CutButton: TkelSpeedButton
      Left = 172
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Cut|Moves what is selected to the clipboard'
      Flat = True
      GlyphIndex = 6
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object CopyButton: TkelSpeedButton
      Left = 196
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Copy|Copies what is selected to the clipboard'
      Flat = True
      GlyphIndex = 7
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object PasteButton: TkelSpeedButton
      Left = 220
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Paste|Inserts what is on the clipboard'
      Enabled = False
      Flat = True
      GlyphIndex = 8
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object FormatPainterButton: TkelSpeedButton
      Left = 244
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Format painter|Copies the format of what is selected'
      Flat = True
      GlyphIndex = 9
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object DeleteButton: TkelSpeedButton
      Left = 268
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Delete|Deletes what is selected'
      Flat = True
      GlyphIndex = 10
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line4: TBevel
      Left = 295
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object UndoButton: TkelSpeedButton
      Left = 300
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Undo|Takes the last change back'
      Flat = True
      GlyphIndex = 11
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object RedoButton: TkelSpeedButton
      Left = 324
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Redo|Makes the change again that was taken back'
      Enabled = False
      Flat = True
      GlyphIndex = 12
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line5: TBevel
      Left = 351
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object FindButton: TkelSpeedButton
      Left = 356
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Find|Looks for a text'
      Flat = True
      GlyphIndex = 13
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object ReplaceButton: TkelSpeedButton
      Left = 380
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Replace|Replaces one text by another'
      Flat = True
      GlyphIndex = 14
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line6: TBevel
      Left = 407
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object InsertTableButton: TkelSpeedButton
      Left = 412
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Table|Inserts a table'
      Flat = True
      GlyphIndex = 29
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object InsertPictureButton: TkelSpeedButton
      Left = 436
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Picture|Inserts a picture'
      Flat = True
      GlyphIndex = 30
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object ChartButton: TkelSpeedButton
      Left = 460
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Chart|Inserts a chart'
      Flat = True
      GlyphIndex = 48
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object LinkButton: TkelSpeedButton
      Left = 484
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Link|Inserts a link'
      Enabled = False
      Flat = True
      GlyphIndex = 31
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line7: TBevel
      Left = 511
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object LockButton: TkelSpeedButton
      Left = 516
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Protect|Protects the document'
      Flat = True
      GlyphIndex = 47
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object PropertiesButton: TkelSpeedButton
      Left = 540
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Properties|Shows what is known about the document'
      Flat = True
      GlyphIndex = 37
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object SettingsButton: TkelSpeedButton
      Left = 564
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Settings|Changes how the program works'
      Flat = True
      GlyphIndex = 46
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line8: TBevel
      Left = 591
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object HelpButton: TkelSpeedButton
      Left = 596
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Help|Opens the guide'
      Flat = True
      GlyphIndex = 35
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object AboutButton: TkelSpeedButton
      Left = 620
      Top = 4
      Width = 24
      Height = 24
      Hint = 'About|Tells about this program'
      Flat = True
      GlyphIndex = 36
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
  end
  object FormatBar: TkelPanel
    Left = 0
    Top = 32
    Width = 752
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    Align = alTop
    TabOrder = 1
    object Line9: TBevel
      Left = 4
      Top = 6
      Width = 3
      Height = 20
      Style = bsRaised
    end
    object BoldButton: TkelSpeedButton
      Left = 12
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Bold|Bold letters'
      AllowAllUp = True
      GroupIndex = 1
      Down = True
      Flat = True
      GlyphIndex = 15
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object ItalicButton: TkelSpeedButton
      Left = 36
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Italic|Slanted letters'
      AllowAllUp = True
      GroupIndex = 2
      Flat = True
      GlyphIndex = 16
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object UnderlineButton: TkelSpeedButton
      Left = 60
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Underline|Underlined letters'
      AllowAllUp = True
      GroupIndex = 3
      Flat = True
      GlyphIndex = 17
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object StrikeoutButton: TkelSpeedButton
      Left = 84
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Strike out|Letters that are struck out'
      AllowAllUp = True
      GroupIndex = 4
      Flat = True
      GlyphIndex = 18
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line10: TBevel
      Left = 111
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object AlignLeftButton: TkelSpeedButton
      Left = 116
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Align left|Lines begin at the left margin'
      GroupIndex = 5
      Down = True
      Flat = True
      GlyphIndex = 21
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object AlignCenterButton: TkelSpeedButton
      Left = 140
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Centre|Lines are centred between the margins'
      GroupIndex = 5
      Flat = True
      GlyphIndex = 22
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object AlignRightButton: TkelSpeedButton
      Left = 164
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Align right|Lines end at the right margin'
      GroupIndex = 5
      Flat = True
      GlyphIndex = 23
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object JustifyButton: TkelSpeedButton
      Left = 188
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Justify|Lines go from margin to margin'
      GroupIndex = 5
      Flat = True
      GlyphIndex = 24
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line11: TBevel
      Left = 215
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object BulletsButton: TkelSpeedButton
      Left = 220
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Bullets|A list with bullets'
      AllowAllUp = True
      GroupIndex = 6
      Flat = True
      GlyphIndex = 25
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object NumberingButton: TkelSpeedButton
      Left = 244
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Numbering|A list with numbers'
      AllowAllUp = True
      GroupIndex = 6
      Flat = True
      GlyphIndex = 26
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line12: TBevel
      Left = 271
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object OutdentButton: TkelSpeedButton
      Left = 276
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Less indent|Moves the paragraph to the left'
      Enabled = False
      Flat = True
      GlyphIndex = 27
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object IndentButton: TkelSpeedButton
      Left = 300
      Top = 4
      Width = 24
      Height = 24
      Hint = 'More indent|Moves the paragraph to the right'
      Flat = True
      GlyphIndex = 28
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line13: TBevel
      Left = 327
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object FontColorButton: TkelSpeedButton
      Left = 332
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Text colour|The colour of the letters'
      Flat = True
      GlyphIndex = 19
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object HighlightButton: TkelSpeedButton
      Left = 356
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Highlight|The colour behind the letters'
      Flat = True
      GlyphIndex = 20
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line14: TBevel
      Left = 383
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object ZoomInButton: TkelSpeedButton
      Left = 388
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Zoom in|Shows the document larger'
      Flat = True
      GlyphIndex = 32
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object ZoomOutButton: TkelSpeedButton
      Left = 412
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Zoom out|Shows the document smaller'
      Flat = True
      GlyphIndex = 33
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object ZoomPageButton: TkelSpeedButton
      Left = 436
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Whole page|Shows a whole page'
      Flat = True
      GlyphIndex = 34
      Glyphs = ToolGlyphs
      OnClick = ToolClick
    end
    object Line15: TBevel
      Left = 463
      Top = 6
      Width = 2
      Height = 20
      Shape = bsLeftLine
    end
    object BackButton: TkelSpeedButton
      Left = 468
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Back|To the page before'
      Flat = True
      GlyphIndex = 40
      Images = Images
      OnClick = ToolClick
    end
    object ForwardButton: TkelSpeedButton
      Left = 492
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Forward|To the next page'
      Enabled = False
      Flat = True
      GlyphIndex = 41
      Images = Images
      OnClick = ToolClick
    end
    object UpButton: TkelSpeedButton
      Left = 516
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Up|One level up'
      Flat = True
      GlyphIndex = 42
      Images = Images
      OnClick = ToolClick
    end
    object StopButton: TkelSpeedButton
      Left = 540
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Stop|Stops loading'
      Flat = True
      GlyphIndex = 43
      Images = Images
      OnClick = ToolClick
    end
    object RefreshButton: TkelSpeedButton
      Left = 564
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Refresh|Loads the page again'
      Flat = True
      GlyphIndex = 38
      Images = Images
      OnClick = ToolClick
    end
    object HomeButton: TkelSpeedButton
      Left = 588
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Home|To the first page'
      Flat = True
      GlyphIndex = 39
      Images = Images
      OnClick = ToolClick
    end
    object MailButton: TkelSpeedButton
      Left = 612
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Mail|Sends the page'
      Flat = True
      GlyphIndex = 44
      Images = Images
      OnClick = ToolClick
    end
    object CalendarButton: TkelSpeedButton
      Left = 636
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Calendar|Shows the calendar'
      Flat = True
      GlyphIndex = 45
      Images = Images
      OnClick = ToolClick
    end
    object StarButton: TkelSpeedButton
      Left = 660
      Top = 4
      Width = 24
      Height = 24
      Hint = 'Favourites|Keeps the page among the favourites'
      Flat = True
      GlyphIndex = 49
      Images = Images
      OnClick = ToolClick
    end
  end
  object BevelPanel1: TkelPanel
    Left = 72
    Top = 116
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelOuter = bvNone
    BorderWidth = 4
    TabOrder = 2
  end
  object BevelPanel2: TkelPanel
    Left = 132
    Top = 116
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvLowered
    BevelOuter = bvNone
    BorderWidth = 4
    TabOrder = 3
  end
  object BevelPanel3: TkelPanel
    Left = 192
    Top = 116
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvRaised
    BevelOuter = bvNone
    BorderWidth = 4
    TabOrder = 4
  end
  object BevelPanel4: TkelPanel
    Left = 72
    Top = 156
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelOuter = bvLowered
    BorderWidth = 4
    TabOrder = 5
  end
  object BevelPanel5: TkelPanel
    Left = 132
    Top = 156
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvLowered
    BevelOuter = bvLowered
    BorderWidth = 4
    TabOrder = 6
  end
  object BevelPanel6: TkelPanel
    Left = 192
    Top = 156
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvRaised
    BevelOuter = bvLowered
    BorderWidth = 4
    TabOrder = 7
  end
  object BevelPanel7: TkelPanel
    Left = 72
    Top = 196
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BorderWidth = 4
    TabOrder = 8
  end
  object BevelPanel8: TkelPanel
    Left = 132
    Top = 196
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvLowered
    BorderWidth = 4
    TabOrder = 9
  end
  object BevelPanel9: TkelPanel
    Left = 192
    Top = 196
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvRaised
    BorderWidth = 4
    TabOrder = 10
  end
  object SidePanel1: TkelPanel
    Left = 260
    Top = 116
    Width = 40
    Height = 44
    BevelSides = [sdLeft]
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelWidth = 2
    Caption = 'left'
    TabOrder = 11
  end
  object SidePanel2: TkelPanel
    Left = 308
    Top = 116
    Width = 40
    Height = 44
    BevelSides = [sdTop]
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelWidth = 2
    Caption = 'top'
    TabOrder = 12
  end
  object SidePanel3: TkelPanel
    Left = 356
    Top = 116
    Width = 40
    Height = 44
    BevelSides = [sdRight]
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelWidth = 2
    Caption = 'right'
    TabOrder = 13
  end
  object SidePanel4: TkelPanel
    Left = 404
    Top = 116
    Width = 40
    Height = 44
    BevelSides = [sdBottom]
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelWidth = 2
    Caption = 'bottom'
    TabOrder = 14
  end
  object SidePanel5: TkelPanel
    Left = 452
    Top = 116
    Width = 40
    Height = 44
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelWidth = 2
    Caption = 'all'
    TabOrder = 15
  end
  object SidePanel6: TkelPanel
    Left = 260
    Top = 184
    Width = 40
    Height = 44
    BorderSides = [sdLeft]
    Transparent = False
    ShowCaption = True
    BevelOuter = bvNone
    Caption = 'left'
    TabOrder = 16
  end
  object SidePanel7: TkelPanel
    Left = 308
    Top = 184
    Width = 40
    Height = 44
    BorderSides = [sdTop]
    Transparent = False
    ShowCaption = True
    BevelOuter = bvNone
    Caption = 'top'
    TabOrder = 17
  end
  object SidePanel8: TkelPanel
    Left = 356
    Top = 184
    Width = 40
    Height = 44
    BorderSides = [sdRight]
    Transparent = False
    ShowCaption = True
    BevelOuter = bvNone
    Caption = 'right'
    TabOrder = 18
  end
  object SidePanel9: TkelPanel
    Left = 404
    Top = 184
    Width = 40
    Height = 44
    BorderSides = [sdBottom]
    Transparent = False
    ShowCaption = True
    BevelOuter = bvNone
    Caption = 'bottom'
    TabOrder = 19
  end
  object SidePanel10: TkelPanel
    Left = 452
    Top = 184
    Width = 40
    Height = 44
    BorderSides = [sdLeft, sdTop, sdRight, sdBottom]
    Transparent = False
    ShowCaption = True
    BevelOuter = bvNone
    Caption = 'all'
    TabOrder = 20
  end
  object CaptionPanel1: TkelPanel
    Left = 508
    Top = 116
    Width = 72
    Height = 32
    BorderColor = clWindow
    BorderSides = []
    VerticalAlignment = vaTop
    Transparent = False
    ShowCaption = True
    Alignment = taLeftJustify
    BevelOuter = bvLowered
    BorderWidth = 2
    Caption = 'top'
    Color = clWindow
    TabOrder = 21
  end
  object CaptionPanel2: TkelPanel
    Left = 588
    Top = 116
    Width = 72
    Height = 32
    BorderColor = clWindow
    BorderSides = []
    VerticalAlignment = vaTop
    Transparent = False
    ShowCaption = True
    BevelOuter = bvLowered
    BorderWidth = 2
    Caption = 'top'
    Color = clWindow
    TabOrder = 22
  end
  object CaptionPanel3: TkelPanel
    Left = 668
    Top = 116
    Width = 72
    Height = 32
    BorderColor = clWindow
    BorderSides = []
    VerticalAlignment = vaTop
    Transparent = False
    ShowCaption = True
    Alignment = taRightJustify
    BevelOuter = bvLowered
    BorderWidth = 2
    Caption = 'top'
    Color = clWindow
    TabOrder = 23
  end
  object CaptionPanel4: TkelPanel
    Left = 508
    Top = 156
    Width = 72
    Height = 32
    BorderColor = clWindow
    BorderSides = []
    Transparent = False
    ShowCaption = True
    Alignment = taLeftJustify
    BevelOuter = bvLowered
    BorderWidth = 2
    Caption = 'centre'
    Color = clWindow
    TabOrder = 24
  end
  object CaptionPanel5: TkelPanel
    Left = 588
    Top = 156
    Width = 72
    Height = 32
    BorderColor = clWindow
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelOuter = bvLowered
    BorderWidth = 2
    Caption = 'centre'
    Color = clWindow
    TabOrder = 25
  end
  object CaptionPanel6: TkelPanel
    Left = 668
    Top = 156
    Width = 72
    Height = 32
    BorderColor = clWindow
    BorderSides = []
    Transparent = False
    ShowCaption = True
    Alignment = taRightJustify
    BevelOuter = bvLowered
    BorderWidth = 2
    Caption = 'centre'
    Color = clWindow
    TabOrder = 26
  end
  object CaptionPanel7: TkelPanel
    Left = 508
    Top = 196
    Width = 72
    Height = 32
    BorderColor = clWindow
    BorderSides = []
    VerticalAlignment = vaBottom
    Transparent = False
    ShowCaption = True
    Alignment = taLeftJustify
    BevelOuter = bvLowered
    BorderWidth = 2
    Caption = 'bottom'
    Color = clWindow
    TabOrder = 27
  end
  object CaptionPanel8: TkelPanel
    Left = 588
    Top = 196
    Width = 72
    Height = 32
    BorderColor = clWindow
    BorderSides = []
    VerticalAlignment = vaBottom
    Transparent = False
    ShowCaption = True
    BevelOuter = bvLowered
    BorderWidth = 2
    Caption = 'bottom'
    Color = clWindow
    TabOrder = 28
  end
  object CaptionPanel9: TkelPanel
    Left = 668
    Top = 196
    Width = 72
    Height = 32
    BorderColor = clWindow
    BorderSides = []
    VerticalAlignment = vaBottom
    Transparent = False
    ShowCaption = True
    Alignment = taRightJustify
    BevelOuter = bvLowered
    BorderWidth = 2
    Caption = 'bottom'
    Color = clWindow
    TabOrder = 29
  end
  object MagnifierPanel: TkelPanel
    Left = 260
    Top = 436
    Width = 104
    Height = 104
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelOuter = bvNone
    BorderStyle = bsSingle
    Color = clWindow
    TabOrder = 30
    object Magnifier: TkelImage
      Left = 2
      Top = 2
      Width = 96
      Height = 96
      Hint = 'Magnifier|One cell of the strip, six times as large'
      Stretch = True
      Transparent = True
    end
  end
  object StepPanel: TkelPanel
    Left = 372
    Top = 516
    Width = 120
    Height = 24
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelOuter = bvNone
    TabOrder = 31
    object PreviousButton: TAlignSpeedButton
      Left = 0
      Top = 0
      Width = 56
      Height = 24
      Caption = 'Previous'
      OnClick = StepClick
      Align = alLeft
    end
    object NextButton: TAlignSpeedButton
      Left = 64
      Top = 0
      Width = 56
      Height = 24
      Caption = 'Next'
      OnClick = StepClick
      Align = alRight
    end
  end
  object CellScroll: TkelScrollBar
    Left = 260
    Top = 548
    Width = 232
    Height = 16
    LargeChange = 8
    PageSize = 0
    TabOrder = 32
    TabStop = False
    OnChange = CellScrollChange
  end
  object SamplePanel: TkelPanel
    Left = 508
    Top = 436
    Width = 136
    Height = 96
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelOuter = bvLowered
    TabOrder = 33
    object SampleLeft: TkelSpeedButton
      Left = 4
      Top = 18
      Width = 60
      Height = 60
      Hint = 'Find|One of a group of two buttons'
      AllowAllUp = True
      GroupIndex = 1
      Caption = 'Find'
      Flat = True
      GlyphIndex = 4
      Glyphs = LargeGlyphs
      Layout = blGlyphTop
      OnClick = ToolClick
    end
    object SampleRight: TkelSpeedButton
      Left = 72
      Top = 18
      Width = 60
      Height = 60
      Hint = 'Help|One of a group of two buttons'
      AllowAllUp = True
      GroupIndex = 1
      Caption = 'Help'
      Flat = True
      GlyphIndex = 5
      Glyphs = LargeGlyphs
      Layout = blGlyphTop
      OnClick = ToolClick
    end
  end
  object StatusBar: TkelPanel
    Left = 0
    Top = 576
    Width = 752
    Height = 28
    BevelSides = [sdTop]
    BorderSides = []
    Transparent = False
    ShowCaption = False
    Align = alBottom
    TabOrder = 34
    object StatusText: TkelPanel
      Left = 12
      Top = 4
      Width = 480
      Height = 20
      BorderSides = []
      Transparent = False
      ShowCaption = True
      Alignment = taLeftJustify
      BevelOuter = bvLowered
      BorderWidth = 2
      Caption = 'Ready'
      TabOrder = 0
    end
    object ClickText: TkelPanel
      Left = 508
      Top = 4
      Width = 232
      Height = 20
      BorderSides = []
      Transparent = False
      ShowCaption = True
      Alignment = taLeftJustify
      BevelOuter = bvLowered
      BorderWidth = 2
      Caption = 'Nothing clicked yet'
      TabOrder = 1
    end
  end
  object ToolGlyphs: TkelGlyphs
    Left = 16
    Top = 560
  end
  object LargeGlyphs: TkelGlyphs
    Left = 48
    Top = 560
  end
  object Images: TImageList
    Left = 80
    Top = 560
  end
end
