object GalleryForm: TGalleryForm
  Left = 0
  Top = 0
  AutoScroll = True
  Caption = 'Gallery'
  ClientHeight = 510
  ClientWidth = 752
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'Tahoma'
  Font.Style = []
  FormStyle = fsMDIChild
  OldCreateOrder = False
  Position = poDefault
  ShowHint = True
  Visible = True
  PixelsPerInch = 96
  TextHeight = 13
  object Label1: TLabel
    Left = 12
    Top = 8
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
    Top = 24
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Label2: TLabel
    Left = 72
    Top = 31
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'none'
  end
  object Label3: TLabel
    Left = 132
    Top = 31
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'lowered'
  end
  object Label4: TLabel
    Left = 192
    Top = 31
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'raised'
  end
  object Label5: TLabel
    Left = 12
    Top = 59
    Width = 27
    Height = 13
    Caption = 'none'
  end
  object Label6: TLabel
    Left = 12
    Top = 99
    Width = 42
    Height = 13
    Caption = 'lowered'
  end
  object Label7: TLabel
    Left = 12
    Top = 139
    Width = 33
    Height = 13
    Caption = 'raised'
  end
  object Label8: TLabel
    Left = 260
    Top = 8
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
    Top = 24
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Label9: TLabel
    Left = 260
    Top = 31
    Width = 33
    Height = 13
    Caption = 'bevels'
  end
  object Label10: TLabel
    Left = 260
    Top = 99
    Width = 62
    Height = 13
    Caption = 'border lines'
  end
  object Label11: TLabel
    Left = 508
    Top = 8
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
    Top = 24
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Label12: TLabel
    Left = 508
    Top = 31
    Width = 72
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'left'
  end
  object Label13: TLabel
    Left = 588
    Top = 31
    Width = 72
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'centre'
  end
  object Label14: TLabel
    Left = 668
    Top = 31
    Width = 72
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'right'
  end
  object Label15: TLabel
    Left = 12
    Top = 176
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
    Top = 192
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Sample1: TkelLabel
    Left = 12
    Top = 203
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
    Top = 203
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
    Top = 235
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
    Top = 235
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
    Top = 267
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
    Top = 267
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
    Top = 299
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
    Top = 299
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
    Top = 176
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
    Top = 192
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object LayoutButton1: TkelSpeedButton
    Left = 260
    Top = 201
    Width = 112
    Height = 36
    Hint = 'Glyph left|blGlyphLeft: the glyph stands left of the caption'
    Caption = '&Back'
    Flat = False
    GlyphIndex = 9
    Glyphs = MainForm.LargeGlyphs
    OnClick = SampleClick
  end
  object LayoutButton2: TkelSpeedButton
    Left = 380
    Top = 201
    Width = 112
    Height = 36
    Hint = 'Glyph right|blGlyphRight: the glyph stands right of the caption'
    Caption = '&Forward'
    Flat = False
    GlyphIndex = 10
    Glyphs = MainForm.LargeGlyphs
    Layout = blGlyphRight
    OnClick = SampleClick
  end
  object LayoutButton3: TkelSpeedButton
    Left = 260
    Top = 245
    Width = 112
    Height = 52
    Hint = 'Glyph on top|blGlyphTop: the glyph stands above the caption'
    Caption = '&Print'
    Flat = False
    GlyphIndex = 3
    Glyphs = MainForm.LargeGlyphs
    Layout = blGlyphTop
    OnClick = SampleClick
  end
  object LayoutButton4: TkelSpeedButton
    Left = 380
    Top = 245
    Width = 112
    Height = 52
    Hint = 'Glyph below|blGlyphBottom: the glyph stands below the caption'
    Caption = '&Mail'
    Flat = False
    GlyphIndex = 8
    Glyphs = MainForm.LargeGlyphs
    Layout = blGlyphBottom
    OnClick = SampleClick
  end
  object PlainButton: TkelSpeedButton
    Left = 260
    Top = 305
    Width = 232
    Height = 24
    Hint = 'Only a caption|A button without a strip shows its caption'
    Caption = 'Only a &caption'
    Flat = False
    GlyphIndex = 0
    OnClick = SampleClick
  end
  object Label17: TLabel
    Left = 508
    Top = 176
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
    Top = 192
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Label18: TLabel
    Left = 568
    Top = 199
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'up'
  end
  object Label19: TLabel
    Left = 628
    Top = 199
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'down'
  end
  object Label20: TLabel
    Left = 688
    Top = 199
    Width = 52
    Height = 13
    Alignment = taCenter
    AutoSize = False
    Caption = 'disabled'
  end
  object Label21: TLabel
    Left = 508
    Top = 227
    Width = 18
    Height = 13
    Caption = 'flat'
  end
  object Label22: TLabel
    Left = 508
    Top = 267
    Width = 33
    Height = 13
    Caption = 'raised'
  end
  object Label23: TLabel
    Left = 508
    Top = 307
    Width = 53
    Height = 13
    Caption = 'captioned'
  end
  object StateButton1: TkelSpeedButton
    Left = 568
    Top = 217
    Width = 52
    Height = 32
    Hint = 'Up|A flat button gets its frame from the pointer'
    Flat = True
    GlyphIndex = 7
    Glyphs = MainForm.LargeGlyphs
    OnClick = SampleClick
  end
  object StateButton2: TkelSpeedButton
    Left = 628
    Top = 217
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
    Glyphs = MainForm.LargeGlyphs
    OnClick = SampleClick
  end
  object StateButton3: TkelSpeedButton
    Left = 688
    Top = 217
    Width = 52
    Height = 32
    Hint = 
      'Disabled|A flat button gets its frame from the pointer, and this' +
      ' one cannot be clicked'
    Enabled = False
    Flat = True
    GlyphIndex = 7
    Glyphs = MainForm.LargeGlyphs
    OnClick = SampleClick
  end
  object StateButton4: TkelSpeedButton
    Left = 568
    Top = 257
    Width = 52
    Height = 32
    Hint = 'Up|A raised button always has a frame'
    Flat = False
    GlyphIndex = 6
    Glyphs = MainForm.LargeGlyphs
    OnClick = SampleClick
  end
  object StateButton5: TkelSpeedButton
    Left = 628
    Top = 257
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
    Glyphs = MainForm.LargeGlyphs
    OnClick = SampleClick
  end
  object StateButton6: TkelSpeedButton
    Left = 688
    Top = 257
    Width = 52
    Height = 32
    Hint = 
      'Disabled|A raised button always has a frame, and this one cannot' +
      ' be clicked'
    Enabled = False
    Flat = False
    GlyphIndex = 6
    Glyphs = MainForm.LargeGlyphs
    OnClick = SampleClick
  end
  object StateButton7: TkelSpeedButton
    Left = 568
    Top = 297
    Width = 52
    Height = 32
    Hint = 'Up|Glyph and caption'
    Caption = 'Bold'
    Flat = True
    GlyphIndex = 15
    Glyphs = MainForm.ToolGlyphs
    OnClick = SampleClick
  end
  object StateButton8: TkelSpeedButton
    Left = 628
    Top = 297
    Width = 52
    Height = 32
    Hint = 'Down|Glyph and caption, and this one is a switch'
    AllowAllUp = True
    GroupIndex = 23
    Down = True
    Caption = 'Bold'
    Flat = True
    GlyphIndex = 15
    Glyphs = MainForm.ToolGlyphs
    OnClick = SampleClick
  end
  object StateButton9: TkelSpeedButton
    Left = 688
    Top = 297
    Width = 52
    Height = 32
    Hint = 'Disabled|Glyph and caption, and this one cannot be clicked'
    Caption = 'Bold'
    Enabled = False
    Flat = True
    GlyphIndex = 15
    Glyphs = MainForm.ToolGlyphs
    OnClick = SampleClick
  end
  object Label24: TLabel
    Left = 12
    Top = 344
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
    Top = 360
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object Shape1: TkelShape
    Left = 12
    Top = 369
    Width = 72
    Height = 60
    Brush.Color = clInfoBk
    Pen.Color = clBtnShadow
  end
  object Shape2: TkelShape
    Left = 92
    Top = 369
    Width = 72
    Height = 60
    Brush.Color = clWindow
    Pen.Color = clHighlight
    Pen.Width = 2
    Shape = stRoundRect
  end
  object Shape3: TkelShape
    Left = 172
    Top = 369
    Width = 72
    Height = 60
    Brush.Color = clHighlight
    Pen.Color = clHighlight
    Shape = stEllipse
  end
  object Shape4: TkelShape
    Left = 12
    Top = 437
    Width = 72
    Height = 60
    Brush.Color = clHighlight
    Pen.Color = clHighlight
    Shape = stSquare
  end
  object Shape5: TkelShape
    Left = 92
    Top = 437
    Width = 72
    Height = 60
    Brush.Color = clInfoBk
    Pen.Color = clBtnShadow
    Shape = stRoundSquare
  end
  object Shape6: TkelShape
    Left = 172
    Top = 437
    Width = 72
    Height = 60
    Brush.Color = clWindow
    Pen.Color = clHighlight
    Pen.Width = 2
    Shape = stCircle
  end
  object Label25: TLabel
    Left = 260
    Top = 344
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
    Top = 360
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object CellLabel: TLabel
    Left = 372
    Top = 369
    Width = 67
    Height = 13
    Caption = 'GlyphIndex 0'
  end
  object CellButton: TkelSpeedButton
    Left = 372
    Top = 393
    Width = 36
    Height = 36
    Hint = 'The cell on a button|A button that is normal'
    Flat = True
    GlyphIndex = 0
    Glyphs = MainForm.ToolGlyphs
  end
  object CellLatched: TkelSpeedButton
    Left = 414
    Top = 393
    Width = 36
    Height = 36
    Hint = 'The cell on a button|A button that is latched'
    GroupIndex = 30
    Down = True
    Flat = True
    GlyphIndex = 0
    Glyphs = MainForm.ToolGlyphs
  end
  object CellDisabled: TkelSpeedButton
    Left = 456
    Top = 393
    Width = 36
    Height = 36
    Hint = 'The cell on a button|A button that is disabled'
    Enabled = False
    Flat = True
    GlyphIndex = 0
    Glyphs = MainForm.ToolGlyphs
  end
  object Label26: TLabel
    Left = 508
    Top = 344
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
    Top = 360
    Width = 232
    Height = 2
    Shape = bsTopLine
  end
  object FlatSwitch: TkelSpeedButton
    Left = 652
    Top = 369
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
    Top = 394
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
    Top = 419
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
    Top = 444
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
    Top = 473
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
    Top = 473
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
    Top = 473
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
    Top = 473
    Width = 52
    Height = 24
    Hint = 'Bottom|Where the samples have their glyph'
    GroupIndex = 50
    Caption = 'Bottom'
    Flat = False
    GlyphIndex = 0
    OnClick = LayoutClick
  end
  object BevelPanel1: TkelPanel
    Left = 72
    Top = 49
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelOuter = bvNone
    BorderWidth = 4
    TabOrder = 0
  end
  object BevelPanel2: TkelPanel
    Left = 132
    Top = 49
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvLowered
    BevelOuter = bvNone
    BorderWidth = 4
    TabOrder = 1
  end
  object BevelPanel3: TkelPanel
    Left = 192
    Top = 49
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvRaised
    BevelOuter = bvNone
    BorderWidth = 4
    TabOrder = 2
  end
  object BevelPanel4: TkelPanel
    Left = 72
    Top = 89
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelOuter = bvLowered
    BorderWidth = 4
    TabOrder = 3
  end
  object BevelPanel5: TkelPanel
    Left = 132
    Top = 89
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvLowered
    BevelOuter = bvLowered
    BorderWidth = 4
    TabOrder = 4
  end
  object BevelPanel6: TkelPanel
    Left = 192
    Top = 89
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvRaised
    BevelOuter = bvLowered
    BorderWidth = 4
    TabOrder = 5
  end
  object BevelPanel7: TkelPanel
    Left = 72
    Top = 129
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BorderWidth = 4
    TabOrder = 6
  end
  object BevelPanel8: TkelPanel
    Left = 132
    Top = 129
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvLowered
    BorderWidth = 4
    TabOrder = 7
  end
  object BevelPanel9: TkelPanel
    Left = 192
    Top = 129
    Width = 52
    Height = 32
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelInner = bvRaised
    BorderWidth = 4
    TabOrder = 8
  end
  object SidePanel1: TkelPanel
    Left = 260
    Top = 49
    Width = 40
    Height = 44
    BevelSides = [sdLeft]
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelWidth = 2
    Caption = 'left'
    TabOrder = 9
  end
  object SidePanel2: TkelPanel
    Left = 308
    Top = 49
    Width = 40
    Height = 44
    BevelSides = [sdTop]
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelWidth = 2
    Caption = 'top'
    TabOrder = 10
  end
  object SidePanel3: TkelPanel
    Left = 356
    Top = 49
    Width = 40
    Height = 44
    BevelSides = [sdRight]
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelWidth = 2
    Caption = 'right'
    TabOrder = 11
  end
  object SidePanel4: TkelPanel
    Left = 404
    Top = 49
    Width = 40
    Height = 44
    BevelSides = [sdBottom]
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelWidth = 2
    Caption = 'bottom'
    TabOrder = 12
  end
  object SidePanel5: TkelPanel
    Left = 452
    Top = 49
    Width = 40
    Height = 44
    BorderSides = []
    Transparent = False
    ShowCaption = True
    BevelWidth = 2
    Caption = 'all'
    TabOrder = 13
  end
  object SidePanel6: TkelPanel
    Left = 260
    Top = 117
    Width = 40
    Height = 44
    BorderSides = [sdLeft]
    Transparent = False
    ShowCaption = True
    BevelOuter = bvNone
    Caption = 'left'
    TabOrder = 14
  end
  object SidePanel7: TkelPanel
    Left = 308
    Top = 117
    Width = 40
    Height = 44
    BorderSides = [sdTop]
    Transparent = False
    ShowCaption = True
    BevelOuter = bvNone
    Caption = 'top'
    TabOrder = 15
  end
  object SidePanel8: TkelPanel
    Left = 356
    Top = 117
    Width = 40
    Height = 44
    BorderSides = [sdRight]
    Transparent = False
    ShowCaption = True
    BevelOuter = bvNone
    Caption = 'right'
    TabOrder = 16
  end
  object SidePanel9: TkelPanel
    Left = 404
    Top = 117
    Width = 40
    Height = 44
    BorderSides = [sdBottom]
    Transparent = False
    ShowCaption = True
    BevelOuter = bvNone
    Caption = 'bottom'
    TabOrder = 17
  end
  object SidePanel10: TkelPanel
    Left = 452
    Top = 117
    Width = 40
    Height = 44
    BorderSides = [sdLeft, sdTop, sdRight, sdBottom]
    Transparent = False
    ShowCaption = True
    BevelOuter = bvNone
    Caption = 'all'
    TabOrder = 18
  end
  object CaptionPanel1: TkelPanel
    Left = 508
    Top = 49
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
    TabOrder = 19
  end
  object CaptionPanel2: TkelPanel
    Left = 588
    Top = 49
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
    TabOrder = 20
  end
  object CaptionPanel3: TkelPanel
    Left = 668
    Top = 49
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
    TabOrder = 21
  end
  object CaptionPanel4: TkelPanel
    Left = 508
    Top = 89
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
    TabOrder = 22
  end
  object CaptionPanel5: TkelPanel
    Left = 588
    Top = 89
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
    TabOrder = 23
  end
  object CaptionPanel6: TkelPanel
    Left = 668
    Top = 89
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
    TabOrder = 24
  end
  object CaptionPanel7: TkelPanel
    Left = 508
    Top = 129
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
    TabOrder = 25
  end
  object CaptionPanel8: TkelPanel
    Left = 588
    Top = 129
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
    TabOrder = 26
  end
  object CaptionPanel9: TkelPanel
    Left = 668
    Top = 129
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
    TabOrder = 27
  end
  object MagnifierPanel: TkelPanel
    Left = 260
    Top = 369
    Width = 104
    Height = 104
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelOuter = bvNone
    BorderStyle = bsSingle
    Color = clWindow
    TabOrder = 28
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
    Top = 449
    Width = 120
    Height = 24
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelOuter = bvNone
    TabOrder = 29
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
    Top = 481
    Width = 232
    Height = 16
    LargeChange = 8
    PageSize = 0
    TabOrder = 30
    TabStop = False
    OnChange = CellScrollChange
  end
  object SamplePanel: TkelPanel
    Left = 508
    Top = 369
    Width = 136
    Height = 96
    BorderSides = []
    Transparent = False
    ShowCaption = False
    BevelOuter = bvLowered
    TabOrder = 31
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
      Glyphs = MainForm.LargeGlyphs
      Layout = blGlyphTop
      OnClick = SampleClick
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
      Glyphs = MainForm.LargeGlyphs
      Layout = blGlyphTop
      OnClick = SampleClick
    end
  end
  object GalleryMenu: TkelMDIChildMenuBar
    Left = 0
    Top = 0
    Width = 752
    Height = 26
    Caption = 'Gallery menu'
    AutoSave = False
    CloseButton = False
    AllowResize = False
    AutoMerge = True
    object SamplesButton: TkelMenuButton
      Left = 14
      Top = 2
      Width = 60
      Height = 22
      Caption = '&Samples'
      Align = alLeft
      Menu = SamplesMenu
      MenuGroupIndex = 1
    end
  end
  object SamplesMenu: TkelOfficePopupMenu
    Banner.BackColor = 269404
    Banner.Position = mbpRight
    Glyphs = MainForm.ToolGlyphs
    Left = 40
    Top = 460
    object LookTitle: TMenuItem
      Caption = '-Look'
    end
    object FlatItem: TMenuItem
      Caption = '&Flat'
      OnClick = SwitchItemClick
    end
    object EnabledItem: TMenuItem
      Caption = '&Enabled'
      OnClick = SwitchItemClick
    end
    object CaptionItem: TMenuItem
      Caption = '&Caption'
      OnClick = SwitchItemClick
    end
    object AllUpItem: TMenuItem
      Caption = '&All up'
      OnClick = SwitchItemClick
    end
    object LayoutTitle: TMenuItem
      Caption = '-Place of the glyph'
    end
    object LeftItem: TMenuItem
      Tag = 81
      Caption = '&Left'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object RightItem: TMenuItem
      Tag = 82
      Caption = '&Right'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object TopItem: TMenuItem
      Tag = 83
      Caption = '&Top'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object BottomItem: TMenuItem
      Tag = 84
      Caption = '&Bottom'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
  end
end
