object MainForm: TMainForm
  Left = 160
  Top = 90
  Caption = 'Tessary showcase'
  ClientHeight = 670
  ClientWidth = 804
  Color = clAppWorkSpace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'Tahoma'
  Font.Style = []
  FormStyle = fsMDIForm
  OldCreateOrder = False
  ShowHint = True
  OnCreate = FormCreate
  OnDestroy = FormDestroy
  PixelsPerInch = 96
  TextHeight = 13
  object DockTop: TkelDock
    Left = 0
    Top = 0
    Width = 804
    Height = 104
    Align = alTop
    PopupMenu = ViewMenu
    object MenuBar: TkelMenuBar
      Left = 0
      Top = 0
      Width = 804
      Height = 26
      Caption = 'Menu'
      PopupMenu = ViewMenu
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object FileButton: TkelMenuButton
        Left = 14
        Top = 2
        Width = 36
        Height = 22
        Caption = '&File'
        Align = alLeft
        Menu = FileMenu
      end
      object DrawButton: TkelMenuButton
        Left = 50
        Top = 2
        Width = 44
        Height = 22
        Caption = '&Draw'
        Align = alLeft
        Menu = DrawMenu
        MenuGroupIndex = 4
      end
      object ViewButton: TkelMenuButton
        Left = 94
        Top = 2
        Width = 42
        Height = 22
        Caption = '&View'
        Align = alLeft
        Menu = ViewMenu
        MenuGroupIndex = 5
      end
      object WindowButton: TkelMenuButton
        Left = 136
        Top = 2
        Width = 58
        Height = 22
        Caption = '&Window'
        Align = alLeft
        Menu = WindowMenu
        MenuGroupIndex = 6
      end
      object HelpButton: TkelMenuButton
        Left = 194
        Top = 2
        Width = 40
        Height = 22
        Caption = '&Help'
        Align = alLeft
        Menu = HelpMenu
        MenuGroupIndex = 7
      end
    end
    object FileBar: TkelToolBar
      Left = 0
      Top = 26
      Width = 216
      Height = 26
      Caption = 'File'
      PopupMenu = ViewMenu
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object NewButton: TkelTBButton
        Left = 14
        Top = 2
        Width = 22
        Height = 22
        Hint = 'New|Starts another document'
        Flat = True
        GlyphIndex = 0
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object OpenButton: TkelTBButton
        Left = 36
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Open|Reads what was saved last'
        Flat = True
        GlyphIndex = 1
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object SaveButton: TkelTBButton
        Left = 58
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Save|Keeps text and drawing in the folder for temporary files'
        Flat = True
        GlyphIndex = 2
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object Separator1: TkelTBSeparator
        Left = 80
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object PrintButton: TkelTBButton
        Left = 88
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Print|Saves the text and has it printed'
        Flat = True
        GlyphIndex = 3
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object Separator2: TkelTBSeparator
        Left = 110
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object ProtectButton: TkelTBButton
        Left = 118
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Protect|The text cannot be changed'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 47
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object CountButton: TkelTBButton
        Left = 140
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Count|Counts lines, words and letters'
        Flat = True
        GlyphIndex = 37
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object Separator3: TkelTBSeparator
        Left = 162
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object AboutButton: TkelTBButton
        Left = 170
        Top = 2
        Width = 22
        Height = 22
        Hint = 'About|What this program is'
        Flat = True
        GlyphIndex = 36
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object ExitButton: TkelTBButton
        Left = 192
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Exit|Leaves the program'
        Flat = True
        GlyphIndex = 43
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
    end
    object EditBar: TkelToolBar
      Left = 0
      Top = 52
      Width = 208
      Height = 26
      Caption = 'Edit'
      PopupMenu = ViewMenu
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object CutButton: TkelTBButton
        Left = 14
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Cut|Moves the selected text to the clipboard'
        Flat = True
        GlyphIndex = 6
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object CopyButton: TkelTBButton
        Left = 36
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Copy|Copies the selected text to the clipboard'
        Flat = True
        GlyphIndex = 7
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object PasteButton: TkelTBButton
        Left = 58
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Paste|Puts the text of the clipboard here'
        Flat = True
        GlyphIndex = 8
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object DeleteButton: TkelTBButton
        Left = 80
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Delete|Deletes the selected text'
        Flat = True
        GlyphIndex = 10
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object Separator4: TkelTBSeparator
        Left = 102
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object UndoButton: TkelTBButton
        Left = 110
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Undo|Takes the last change of text or drawing back'
        Flat = True
        GlyphIndex = 11
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object RedoButton: TkelTBButton
        Left = 132
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Redo|Makes the change again'
        Flat = True
        GlyphIndex = 12
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object Separator5: TkelTBSeparator
        Left = 154
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object FindButton: TkelTBButton
        Left = 162
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Find|Goes to the next place of the selected text'
        Flat = True
        GlyphIndex = 13
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object DateButton: TkelTBButton
        Left = 184
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Date|Writes the date and the time'
        Flat = True
        GlyphIndex = 45
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
    end
    object FormatBar: TkelToolBar
      Left = 0
      Top = 78
      Width = 345
      Height = 26
      Caption = 'Format'
      PopupMenu = ViewMenu
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object StyleCombo: TkelTBComboPopup
        Left = 14
        Top = 2
        Width = 33
        Height = 22
        Hint = 'Style|Gives the text its style again; the arrow offers others'
        GlyphIndex = 68
        Glyphs = ToolGlyphs
        Menu = StyleMenu
        OnButtonClick = StyleClick
        Align = alLeft
      end
      object Separator6: TkelTBSeparator
        Left = 47
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object BoldButton: TkelTBButton
        Left = 55
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Bold|Heavy letters'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 15
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object ItalicButton: TkelTBButton
        Left = 77
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Italic|Slanted letters'
        AllowAllUp = True
        GroupIndex = 2
        Flat = True
        GlyphIndex = 16
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object UnderlineButton: TkelTBButton
        Left = 99
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Underline|A line below the letters'
        AllowAllUp = True
        GroupIndex = 3
        Flat = True
        GlyphIndex = 17
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object StrikeoutButton: TkelTBButton
        Left = 121
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Strikeout|A line through the letters'
        AllowAllUp = True
        GroupIndex = 4
        Flat = True
        GlyphIndex = 18
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object Separator7: TkelTBSeparator
        Left = 143
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object AlignLeftButton: TkelTBButton
        Left = 151
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Left|Lines begin at the left'
        GroupIndex = 5
        Down = True
        Flat = True
        GlyphIndex = 21
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object AlignCenterButton: TkelTBButton
        Left = 173
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Centred|Lines stand in the middle'
        GroupIndex = 5
        Flat = True
        GlyphIndex = 22
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object AlignRightButton: TkelTBButton
        Left = 195
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Right|Lines end at the right'
        GroupIndex = 5
        Flat = True
        GlyphIndex = 23
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object Separator8: TkelTBSeparator
        Left = 217
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object LargerButton: TkelTBButton
        Left = 225
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Larger|Larger letters'
        Flat = True
        GlyphIndex = 69
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object SmallerButton: TkelTBButton
        Left = 247
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Smaller|Smaller letters'
        Flat = True
        GlyphIndex = 70
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object Separator9: TkelTBSeparator
        Left = 269
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object TextColorCombo: TkelTBColorCombo
        Left = 277
        Top = 2
        Width = 33
        Height = 22
        Hint = 'Text colour|The colour of the letters'
        GlyphIndex = 66
        Glyphs = ToolGlyphs
        CurrentColor = clNavy
        OnButtonClick = ColorApply
        OnChange = ColorApply
        Align = alLeft
      end
      object PaperColorCombo: TkelTBColorCombo
        Left = 310
        Top = 2
        Width = 33
        Height = 22
        Tag = 1
        Hint = 'Paper colour|The colour behind the letters'
        GlyphIndex = 67
        Glyphs = ToolGlyphs
        CurrentColor = clCream
        OnButtonClick = ColorApply
        OnChange = ColorApply
        Align = alLeft
      end
    end
  end
  object DockLeft: TkelDock
    Left = 0
    Top = 104
    Width = 26
    Height = 512
    Align = alLeft
    PopupMenu = ViewMenu
    object ToolsBar: TkelToolBar
      Left = 0
      Top = 0
      Width = 26
      Height = 156
      Caption = 'Tools'
      PopupMenu = ViewMenu
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object PencilTool: TkelTBButton
        Left = 2
        Top = 14
        Width = 22
        Height = 22
        Hint = 'Pencil|Draws a thin line'
        AllowAllUp = True
        GroupIndex = 1
        Down = True
        Flat = True
        GlyphIndex = 50
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
      object BrushTool: TkelTBButton
        Left = 2
        Top = 36
        Width = 22
        Height = 22
        Hint = 'Brush|Draws a broad line'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 51
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
      object EraserTool: TkelTBButton
        Left = 2
        Top = 58
        Width = 22
        Height = 22
        Hint = 'Eraser|Makes the paper white again'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 52
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
      object Separator13: TkelTBSeparator
        Left = 2
        Top = 80
        Width = 22
        Height = 8
        Align = alTop
      end
      object FillTool: TkelTBButton
        Left = 2
        Top = 88
        Width = 22
        Height = 22
        Hint = 'Fill|Fills an area with the fill colour'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 53
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
      object PickColorTool: TkelTBButton
        Left = 2
        Top = 110
        Width = 22
        Height = 22
        Hint = 'Pick a colour|Takes the line colour from the drawing'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 55
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
      object TextTool: TkelTBButton
        Left = 2
        Top = 132
        Width = 22
        Height = 22
        Hint = 'Text|Writes the selected text into the drawing'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 54
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
    end
  end
  object DockRight: TkelDock
    Left = 778
    Top = 104
    Width = 26
    Height = 512
    Align = alRight
    PopupMenu = ViewMenu
    object ViewBar: TkelToolBar
      Left = 0
      Top = 0
      Width = 26
      Height = 194
      Caption = 'View'
      PopupMenu = ViewMenu
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object BarsButton: TkelTBPopup
        Left = 2
        Top = 14
        Width = 22
        Height = 22
        Hint = 'Toolbars|Shows and hides toolbars'
        Flat = True
        GlyphIndex = 62
        Glyphs = ToolGlyphs
        Menu = ViewMenu
        Align = alTop
      end
      object Separator10: TkelTBSeparator
        Left = 2
        Top = 36
        Width = 22
        Height = 8
        Align = alTop
      end
      object ZoomInButton: TkelTBButton
        Left = 2
        Top = 44
        Width = 22
        Height = 22
        Hint = 'Zoom in|Shows text and drawing larger'
        Flat = True
        GlyphIndex = 32
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
      object ZoomOutButton: TkelTBButton
        Left = 2
        Top = 66
        Width = 22
        Height = 22
        Hint = 'Zoom out|Shows text and drawing smaller'
        Flat = True
        GlyphIndex = 33
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
      object ZoomPageButton: TkelTBButton
        Left = 2
        Top = 88
        Width = 22
        Height = 22
        Hint = 'Actual size|Shows text and drawing as they are'
        Flat = True
        GlyphIndex = 34
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
      object Separator11: TkelTBSeparator
        Left = 2
        Top = 110
        Width = 22
        Height = 8
        Align = alTop
      end
      object DocumentButton: TkelTBButton
        Left = 2
        Top = 118
        Width = 22
        Height = 22
        Hint = 'Document|Shows the text and the drawing'
        AllowAllUp = True
        GroupIndex = 1
        Down = True
        Flat = True
        GlyphIndex = 63
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
      object GalleryButton: TkelTBButton
        Left = 2
        Top = 140
        Width = 22
        Height = 22
        Hint = 'Gallery|Shows panels, labels and buttons'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 65
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
      object Separator12: TkelTBSeparator
        Left = 2
        Top = 162
        Width = 22
        Height = 8
        Align = alTop
      end
      object DrawingSwitch: TkelTBButton
        Left = 2
        Top = 170
        Width = 22
        Height = 22
        Hint = 'Drawing|Shows the drawing beside the text'
        AllowAllUp = True
        GroupIndex = 2
        Down = True
        Flat = True
        GlyphIndex = 64
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alTop
      end
    end
  end
  object DockBottom: TkelDock
    Left = 0
    Top = 616
    Width = 804
    Height = 26
    Align = alBottom
    PopupMenu = ViewMenu
    object DrawingBar: TkelToolBar
      Left = 0
      Top = 0
      Width = 260
      Height = 26
      Caption = 'Drawing'
      PopupMenu = ViewMenu
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object LineTool: TkelTBButton
        Left = 14
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Line|Draws a straight line'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 56
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object RectangleTool: TkelTBButton
        Left = 36
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Rectangle|Draws a rectangle'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 57
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object RoundRectangleTool: TkelTBButton
        Left = 58
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Rounded rectangle|Draws a rectangle with round corners'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 58
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object EllipseTool: TkelTBButton
        Left = 80
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Ellipse|Draws an ellipse'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 59
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
      object Separator14: TkelTBSeparator
        Left = 102
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object LineColorCombo: TkelTBColorCombo
        Left = 110
        Top = 2
        Width = 33
        Height = 22
        Tag = 2
        Hint = 'Line colour|The colour of lines and outlines'
        GlyphIndex = 50
        Glyphs = ToolGlyphs
        CurrentColor = clBlack
        OnButtonClick = ColorApply
        OnChange = ColorApply
        Align = alLeft
      end
      object FillColorCombo: TkelTBColorCombo
        Left = 143
        Top = 2
        Width = 33
        Height = 22
        Tag = 3
        Hint = 'Fill colour|The colour inside of shapes'
        GlyphIndex = 53
        Glyphs = ToolGlyphs
        CurrentColor = clSkyBlue
        OnButtonClick = ColorApply
        OnChange = ColorApply
        Align = alLeft
      end
      object Separator15: TkelTBSeparator
        Left = 176
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object LineStyleButton: TkelTBPopup
        Left = 184
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Line style|Unbroken, dashed or dotted lines'
        Flat = True
        GlyphIndex = 60
        Glyphs = ToolGlyphs
        Menu = LineStyleMenu
        Align = alLeft
      end
      object LineWidthButton: TkelTBPopup
        Left = 206
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Line width|Thin or thick lines'
        Flat = True
        GlyphIndex = 61
        Glyphs = ToolGlyphs
        Menu = LineWidthMenu
        Align = alLeft
      end
      object Separator16: TkelTBSeparator
        Left = 228
        Top = 2
        Width = 8
        Height = 22
        Align = alLeft
      end
      object ClearButton: TkelTBButton
        Left = 236
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Clear|Starts the drawing anew'
        Flat = True
        GlyphIndex = 79
        Glyphs = ToolGlyphs
        OnClick = CommandClick
        Align = alLeft
      end
    end
  end
  object StatusBar: TkelPanel
    Left = 0
    Top = 642
    Width = 804
    Height = 28
    BevelSides = [sdTop]
    BorderSides = []
    Transparent = False
    ShowCaption = False
    Align = alBottom
    BorderWidth = 3
    TabOrder = 4
    object HintText: TkelPanel
      Left = 4
      Top = 4
      Width = 480
      Height = 20
      BorderSides = []
      Transparent = False
      ShowCaption = True
      Alignment = taLeftJustify
      Align = alClient
      BevelOuter = bvLowered
      BorderWidth = 2
      Caption = 'Ready'
      TabOrder = 0
    end
    object MessageText: TkelPanel
      Left = 488
      Top = 4
      Width = 312
      Height = 20
      BorderSides = []
      Transparent = False
      ShowCaption = True
      Alignment = taLeftJustify
      Align = alRight
      BevelOuter = bvLowered
      BorderWidth = 2
      Caption = ''
      TabOrder = 1
    end
  end
  object ToolGlyphs: TkelGlyphs
    Left = 40
    Top = 512
  end
  object LargeGlyphs: TkelGlyphs
    Left = 80
    Top = 512
  end
  object SavePos: TkelSavePos
    Left = 120
    Top = 512
  end
  object FileMenu: TkelOfficePopupMenu
    Banner.BackColor = 3741710
    Banner.PicturePosition = ppBottom
    Glyphs = ToolGlyphs
    Left = 40
    Top = 552
    object NewItem: TMenuItem
      Tag = 1
      Caption = '&New'
      ShortCut = 16462
      OnClick = CommandClick
    end
    object OpenItem: TMenuItem
      Tag = 2
      Caption = '&Open what was saved'
      ShortCut = 16463
      OnClick = CommandClick
    end
    object SaveItem: TMenuItem
      Tag = 3
      Caption = '&Save'
      ShortCut = 16467
      OnClick = CommandClick
    end
    object PrintItem: TMenuItem
      Tag = 4
      Caption = '&Print'
      ShortCut = 16464
      OnClick = CommandClick
    end
    object FoldersTitle: TMenuItem
      Caption = '-Recent folders'
    end
    object FileLine: TMenuItem
      Caption = '-'
    end
    object ExitItem: TMenuItem
      Tag = 44
      Caption = 'E&xit'
      ShortCut = 32883
      OnClick = CommandClick
    end
  end
  object DrawMenu: TkelOfficePopupMenu
    Glyphs = ToolGlyphs
    Left = 80
    Top = 552
    object ToolsTitle: TMenuItem
      Caption = '-Tools'
    end
    object PencilItem: TMenuItem
      Tag = 51
      Caption = '&Pencil'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object BrushItem: TMenuItem
      Tag = 52
      Caption = '&Brush'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object EraserItem: TMenuItem
      Tag = 53
      Caption = '&Eraser'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object FillItem: TMenuItem
      Tag = 54
      Caption = 'Fi&ll'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object TextItem: TMenuItem
      Tag = 55
      Caption = '&Text'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object PickColorItem: TMenuItem
      Tag = 56
      Caption = 'Pick a &colour'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object ShapesTitle: TMenuItem
      Caption = '-Shapes'
      GroupIndex = 1
    end
    object LineItem: TMenuItem
      Tag = 57
      Caption = 'L&ine'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object RectangleItem: TMenuItem
      Tag = 58
      Caption = '&Rectangle'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object RoundRectangleItem: TMenuItem
      Tag = 59
      Caption = 'R&ounded rectangle'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object EllipseItem: TMenuItem
      Tag = 60
      Caption = 'Ellip&se'
      GroupIndex = 1
      RadioItem = True
      OnClick = CommandClick
    end
    object LinesTitle: TMenuItem
      Caption = '-Lines and colours'
      GroupIndex = 1
    end
    object WidthItem: TMenuItem
      Tag = 62
      Caption = '&Width'
      GroupIndex = 1
      OnClick = LineWidthOpen
      object WidthItem1: TMenuItem
        Caption = '&1 pixel'
        OnClick = LineWidthItemClick
      end
      object WidthItem2: TMenuItem
        Caption = '&2 pixels'
        OnClick = LineWidthItemClick
      end
      object WidthItem3: TMenuItem
        Caption = '&4 pixels'
        OnClick = LineWidthItemClick
      end
      object WidthItem4: TMenuItem
        Caption = '&8 pixels'
        OnClick = LineWidthItemClick
      end
    end
    object StyleItem: TMenuItem
      Tag = 61
      Caption = 'St&yle'
      GroupIndex = 1
      OnClick = LineStyleOpen
      object DashItem1: TMenuItem
        Caption = '&Unbroken'
        OnClick = LineStyleItemClick
      end
      object DashItem2: TMenuItem
        Caption = 'Das&hed'
        OnClick = LineStyleItemClick
      end
      object DashItem3: TMenuItem
        Caption = '&Dotted'
        OnClick = LineStyleItemClick
      end
    end
    object LineColorItem: TMenuItem
      Tag = 51
      Caption = 'Li&ne colour'
      GroupIndex = 1
      OnClick = ColorItemClick
    end
    object FillColorItem: TMenuItem
      Tag = 54
      Caption = '&Fill colour'
      GroupIndex = 1
      OnClick = ColorItemClick
    end
    object PaperColorItem: TMenuItem
      Tag = 68
      Caption = 'P&aper colour'
      GroupIndex = 1
      OnClick = ColorItemClick
    end
    object DrawLine: TMenuItem
      Caption = '-'
      GroupIndex = 1
    end
    object ClearItem: TMenuItem
      Tag = 80
      Caption = 'E&mpty the sheet'
      GroupIndex = 1
      OnClick = CommandClick
    end
  end
  object ViewMenu: TkelOfficePopupMenu
    Glyphs = ToolGlyphs
    Left = 120
    Top = 552
    object BarsTitle: TMenuItem
      Caption = '-Toolbars'
    end
    object ViewLine: TMenuItem
      Caption = '-'
    end
    object ResetItem: TMenuItem
      Tag = 39
      Caption = '&Reset layout'
      OnClick = CommandClick
    end
    object ZoomTitle: TMenuItem
      Caption = '-Document'
    end
    object ZoomInItem: TMenuItem
      Tag = 33
      Caption = 'Zoom &in'
      OnClick = CommandClick
    end
    object ZoomOutItem: TMenuItem
      Tag = 34
      Caption = 'Zoom &out'
      OnClick = CommandClick
    end
    object ZoomPageItem: TMenuItem
      Tag = 35
      Caption = '&Actual size'
      OnClick = CommandClick
    end
    object DrawingItem: TMenuItem
      Tag = 65
      Caption = '&Drawing'
      RadioItem = True
      OnClick = CommandClick
    end
    object SettingsLine: TMenuItem
      Caption = '-'
    end
    object SettingsItem: TMenuItem
      Tag = 47
      Caption = '&Settings...'
      OnClick = CommandClick
    end
  end
  object WindowMenu: TkelOfficePopupMenu
    Glyphs = ToolGlyphs
    Left = 160
    Top = 552
    object CascadeItem: TMenuItem
      Tag = 74
      Caption = '&Cascade'
      OnClick = CommandClick
    end
    object TileWideItem: TMenuItem
      Tag = 75
      Caption = '&Tile'
      OnClick = CommandClick
    end
    object TileHighItem: TMenuItem
      Tag = 76
      Caption = 'Tile &side by side'
      OnClick = CommandClick
    end
    object ArrangeItem: TMenuItem
      Tag = 77
      Caption = '&Arrange icons'
      OnClick = CommandClick
    end
    object WindowLine: TMenuItem
      Caption = '-'
    end
    object NextWindowItem: TMenuItem
      Tag = 78
      Caption = '&Next'
      ShortCut = 16501
      OnClick = CommandClick
    end
    object CloseWindowItem: TMenuItem
      Tag = 79
      Caption = 'C&lose'
      ShortCut = 16499
      OnClick = CommandClick
    end
    object SystemMenuItem: TMenuItem
      Caption = 'S&ystem menu'
      ShortCut = 32957
      OnClick = SystemMenuItemClick
    end
    object WindowsTitle: TMenuItem
      Caption = '-Windows'
    end
  end
  object HelpMenu: TkelOfficePopupMenu
    Glyphs = ToolGlyphs
    Left = 200
    Top = 552
    object DocumentItem: TMenuItem
      Tag = 64
      Caption = '&Document'
      OnClick = CommandClick
    end
    object GalleryItem: TMenuItem
      Tag = 66
      Caption = '&Gallery'
      OnClick = CommandClick
    end
    object HelpLine: TMenuItem
      Caption = '-'
    end
    object AboutItem: TMenuItem
      Tag = 37
      Caption = '&About'
      ShortCut = 112
      OnClick = CommandClick
    end
  end
  object FolderMenu: TkelFolderMenu
    ShowFiles = True
    SmallIcon = True
    OnClickFolder = FolderMenuClickFolder
    Left = 240
    Top = 552
  end
  object StyleMenu: TPopupMenu
    OnPopup = StyleOpen
    Left = 280
    Top = 552
    object StyleItem1: TMenuItem
      Caption = 'Normal'
      RadioItem = True
      OnClick = StyleItemClick
    end
    object StyleItem2: TMenuItem
      Caption = 'Heading'
      RadioItem = True
      OnClick = StyleItemClick
    end
    object StyleItem3: TMenuItem
      Caption = 'Quotation'
      RadioItem = True
      OnClick = StyleItemClick
    end
    object StyleItem4: TMenuItem
      Caption = 'Program'
      RadioItem = True
      OnClick = StyleItemClick
    end
  end
  object LineStyleMenu: TPopupMenu
    OnPopup = LineStyleOpen
    Left = 320
    Top = 552
    object LineStyleItem1: TMenuItem
      Caption = 'Unbroken'
      RadioItem = True
      OnClick = LineStyleItemClick
    end
    object LineStyleItem2: TMenuItem
      Caption = 'Dashed'
      RadioItem = True
      OnClick = LineStyleItemClick
    end
    object LineStyleItem3: TMenuItem
      Caption = 'Dotted'
      RadioItem = True
      OnClick = LineStyleItemClick
    end
  end
  object LineWidthMenu: TPopupMenu
    OnPopup = LineWidthOpen
    Left = 360
    Top = 552
    object LineWidthItem1: TMenuItem
      Caption = '1 pixel'
      RadioItem = True
      OnClick = LineWidthItemClick
    end
    object LineWidthItem2: TMenuItem
      Caption = '2 pixels'
      RadioItem = True
      OnClick = LineWidthItemClick
    end
    object LineWidthItem3: TMenuItem
      Caption = '4 pixels'
      RadioItem = True
      OnClick = LineWidthItemClick
    end
    object LineWidthItem4: TMenuItem
      Caption = '8 pixels'
      RadioItem = True
      OnClick = LineWidthItemClick
    end
  end
end
