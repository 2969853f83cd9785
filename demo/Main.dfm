object MainForm: TMainForm
  Left = 160
  Top = 90
  Caption = 'Tessary showcase'
  ClientHeight = 644
  ClientWidth = 804
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'Tahoma'
  Font.Style = []
  OldCreateOrder = False
  ShowHint = True
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 13
  object DockTop: TkelDock
    Left = 0
    Top = 0
    Width = 804
    Height = 78
    Align = alTop
    PopupMenu = BarsMenu
    object FileBar: TkelToolBar
      Left = 0
      Top = 0
      Width = 216
      Height = 26
      Caption = 'File'
      PopupMenu = BarsMenu
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object NewButton: TkelTBButton
        Left = 14
        Top = 2
        Width = 22
        Height = 22
        Hint = 'New|Starts an empty text and an empty drawing'
        Flat = True
        GlyphIndex = 0
        Glyphs = ToolGlyphs
        OnClick = NewClick
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
        OnClick = OpenClick
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
        OnClick = SaveClick
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
        OnClick = PrintClick
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
        OnClick = ProtectClick
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
        OnClick = CountClick
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
        OnClick = AboutClick
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
        OnClick = ExitClick
        Align = alLeft
      end
    end
    object EditBar: TkelToolBar
      Left = 0
      Top = 26
      Width = 208
      Height = 26
      Caption = 'Edit'
      PopupMenu = BarsMenu
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
        OnClick = EditClick
        Align = alLeft
      end
      object CopyButton: TkelTBButton
        Left = 36
        Top = 2
        Width = 22
        Height = 22
        Tag = 1
        Hint = 'Copy|Copies the selected text to the clipboard'
        Flat = True
        GlyphIndex = 7
        Glyphs = ToolGlyphs
        OnClick = EditClick
        Align = alLeft
      end
      object PasteButton: TkelTBButton
        Left = 58
        Top = 2
        Width = 22
        Height = 22
        Tag = 2
        Hint = 'Paste|Puts the text of the clipboard here'
        Flat = True
        GlyphIndex = 8
        Glyphs = ToolGlyphs
        OnClick = EditClick
        Align = alLeft
      end
      object DeleteButton: TkelTBButton
        Left = 80
        Top = 2
        Width = 22
        Height = 22
        Tag = 3
        Hint = 'Delete|Deletes the selected text'
        Flat = True
        GlyphIndex = 10
        Glyphs = ToolGlyphs
        OnClick = EditClick
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
        Tag = -1
        Hint = 'Undo|Takes the last change of text or drawing back'
        Enabled = False
        Flat = True
        GlyphIndex = 11
        Glyphs = ToolGlyphs
        OnClick = HistoryClick
        Align = alLeft
      end
      object RedoButton: TkelTBButton
        Left = 132
        Top = 2
        Width = 22
        Height = 22
        Tag = 1
        Hint = 'Redo|Makes the change again'
        Enabled = False
        Flat = True
        GlyphIndex = 12
        Glyphs = ToolGlyphs
        OnClick = HistoryClick
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
        OnClick = FindClick
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
        OnClick = DateClick
        Align = alLeft
      end
    end
    object FormatBar: TkelToolBar
      Left = 0
      Top = 52
      Width = 345
      Height = 26
      Caption = 'Format'
      PopupMenu = BarsMenu
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
        OnClick = FontStyleClick
        Align = alLeft
      end
      object ItalicButton: TkelTBButton
        Left = 77
        Top = 2
        Width = 22
        Height = 22
        Tag = 1
        Hint = 'Italic|Slanted letters'
        AllowAllUp = True
        GroupIndex = 2
        Flat = True
        GlyphIndex = 16
        Glyphs = ToolGlyphs
        OnClick = FontStyleClick
        Align = alLeft
      end
      object UnderlineButton: TkelTBButton
        Left = 99
        Top = 2
        Width = 22
        Height = 22
        Tag = 2
        Hint = 'Underline|A line below the letters'
        AllowAllUp = True
        GroupIndex = 3
        Flat = True
        GlyphIndex = 17
        Glyphs = ToolGlyphs
        OnClick = FontStyleClick
        Align = alLeft
      end
      object StrikeoutButton: TkelTBButton
        Left = 121
        Top = 2
        Width = 22
        Height = 22
        Tag = 3
        Hint = 'Strikeout|A line through the letters'
        AllowAllUp = True
        GroupIndex = 4
        Flat = True
        GlyphIndex = 18
        Glyphs = ToolGlyphs
        OnClick = FontStyleClick
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
        OnClick = AlignClick
        Align = alLeft
      end
      object AlignCenterButton: TkelTBButton
        Left = 173
        Top = 2
        Width = 22
        Height = 22
        Tag = 2
        Hint = 'Centred|Lines stand in the middle'
        GroupIndex = 5
        Flat = True
        GlyphIndex = 22
        Glyphs = ToolGlyphs
        OnClick = AlignClick
        Align = alLeft
      end
      object AlignRightButton: TkelTBButton
        Left = 195
        Top = 2
        Width = 22
        Height = 22
        Tag = 1
        Hint = 'Right|Lines end at the right'
        GroupIndex = 5
        Flat = True
        GlyphIndex = 23
        Glyphs = ToolGlyphs
        OnClick = AlignClick
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
        Tag = 1
        Hint = 'Larger|Larger letters'
        Flat = True
        GlyphIndex = 69
        Glyphs = ToolGlyphs
        OnClick = SizeClick
        Align = alLeft
      end
      object SmallerButton: TkelTBButton
        Left = 247
        Top = 2
        Width = 22
        Height = 22
        Tag = -1
        Hint = 'Smaller|Smaller letters'
        Flat = True
        GlyphIndex = 70
        Glyphs = ToolGlyphs
        OnClick = SizeClick
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
        OnListDown = ColorListDown
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
        OnListDown = ColorListDown
        OnChange = ColorApply
        Align = alLeft
      end
    end
  end
  object DockLeft: TkelDock
    Left = 0
    Top = 78
    Width = 26
    Height = 512
    Align = alLeft
    PopupMenu = BarsMenu
    object ToolsBar: TkelToolBar
      Left = 0
      Top = 0
      Width = 26
      Height = 156
      Caption = 'Tools'
      PopupMenu = BarsMenu
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
        OnClick = ToolClick
        Align = alTop
      end
      object BrushTool: TkelTBButton
        Left = 2
        Top = 36
        Width = 22
        Height = 22
        Tag = 1
        Hint = 'Brush|Draws a broad line'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 51
        Glyphs = ToolGlyphs
        OnClick = ToolClick
        Align = alTop
      end
      object EraserTool: TkelTBButton
        Left = 2
        Top = 58
        Width = 22
        Height = 22
        Tag = 2
        Hint = 'Eraser|Makes the paper white again'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 52
        Glyphs = ToolGlyphs
        OnClick = ToolClick
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
        Tag = 3
        Hint = 'Fill|Fills an area with the fill colour'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 53
        Glyphs = ToolGlyphs
        OnClick = ToolClick
        Align = alTop
      end
      object PickColorTool: TkelTBButton
        Left = 2
        Top = 110
        Width = 22
        Height = 22
        Tag = 4
        Hint = 'Pick a colour|Takes the line colour from the drawing'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 55
        Glyphs = ToolGlyphs
        OnClick = ToolClick
        Align = alTop
      end
      object TextTool: TkelTBButton
        Left = 2
        Top = 132
        Width = 22
        Height = 22
        Tag = 5
        Hint = 'Text|Writes the selected text into the drawing'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 54
        Glyphs = ToolGlyphs
        OnClick = ToolClick
        Align = alTop
      end
    end
  end
  object DockRight: TkelDock
    Left = 778
    Top = 78
    Width = 26
    Height = 512
    Align = alRight
    PopupMenu = BarsMenu
    object ViewBar: TkelToolBar
      Left = 0
      Top = 0
      Width = 26
      Height = 194
      Caption = 'View'
      PopupMenu = BarsMenu
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
        Menu = BarsMenu
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
        Tag = 1
        Hint = 'Zoom in|Shows text and drawing larger'
        Flat = True
        GlyphIndex = 32
        Glyphs = ToolGlyphs
        OnClick = ZoomClick
        Align = alTop
      end
      object ZoomOutButton: TkelTBButton
        Left = 2
        Top = 66
        Width = 22
        Height = 22
        Tag = -1
        Hint = 'Zoom out|Shows text and drawing smaller'
        Flat = True
        GlyphIndex = 33
        Glyphs = ToolGlyphs
        OnClick = ZoomClick
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
        OnClick = ZoomClick
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
        GroupIndex = 1
        Down = True
        Flat = True
        GlyphIndex = 63
        Glyphs = ToolGlyphs
        OnClick = PageClick
        Align = alTop
      end
      object GalleryButton: TkelTBButton
        Left = 2
        Top = 140
        Width = 22
        Height = 22
        Hint = 'Gallery|Shows panels, labels and buttons'
        GroupIndex = 1
        Flat = True
        GlyphIndex = 65
        Glyphs = ToolGlyphs
        OnClick = PageClick
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
        OnClick = PaneClick
        Align = alTop
      end
    end
  end
  object DockBottom: TkelDock
    Left = 0
    Top = 590
    Width = 804
    Height = 26
    Align = alBottom
    PopupMenu = BarsMenu
    object DrawingBar: TkelToolBar
      Left = 0
      Top = 0
      Width = 260
      Height = 26
      Caption = 'Drawing'
      PopupMenu = BarsMenu
      AutoSave = True
      CloseButton = True
      AllowResize = False
      object LineTool: TkelTBButton
        Left = 14
        Top = 2
        Width = 22
        Height = 22
        Tag = 6
        Hint = 'Line|Draws a straight line'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 56
        Glyphs = ToolGlyphs
        OnClick = ToolClick
        Align = alLeft
      end
      object RectangleTool: TkelTBButton
        Left = 36
        Top = 2
        Width = 22
        Height = 22
        Tag = 7
        Hint = 'Rectangle|Draws a rectangle'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 57
        Glyphs = ToolGlyphs
        OnClick = ToolClick
        Align = alLeft
      end
      object RoundRectangleTool: TkelTBButton
        Left = 58
        Top = 2
        Width = 22
        Height = 22
        Tag = 8
        Hint = 'Rounded rectangle|Draws a rectangle with round corners'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 58
        Glyphs = ToolGlyphs
        OnClick = ToolClick
        Align = alLeft
      end
      object EllipseTool: TkelTBButton
        Left = 80
        Top = 2
        Width = 22
        Height = 22
        Tag = 9
        Hint = 'Ellipse|Draws an ellipse'
        AllowAllUp = True
        GroupIndex = 1
        Flat = True
        GlyphIndex = 59
        Glyphs = ToolGlyphs
        OnClick = ToolClick
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
        OnListDown = ColorListDown
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
        OnListDown = ColorListDown
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
        Hint = 'Line style|Whole, dashed or dotted lines'
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
        GlyphIndex = 10
        Glyphs = ToolGlyphs
        OnClick = ClearClick
        Align = alLeft
      end
    end
  end
  object DocumentPage: TkelPanel
    Left = 26
    Top = 78
    Width = 752
    Height = 512
    BorderSides = []
    Transparent = False
    ShowCaption = False
    Align = alClient
    BevelOuter = bvNone
    TabOrder = 4
    object Splitter: TSplitter
      Left = 420
      Top = 0
      Width = 4
      Height = 512
      Align = alRight
      ResizeStyle = rsUpdate
    end
    object Memo: TMemo
      Left = 0
      Top = 0
      Width = 420
      Height = 512
      Align = alClient
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWindowText
      Font.Height = -16
      Font.Name = 'Tahoma'
      Font.Style = []
      HideSelection = False
      Lines.Strings = (
        
          'This text is here to be worked on. The bars along the edges of t' +
          'he window act on it, and on the drawing beside it.'
        ''
        
          'Bars are dragged by their grip, by a separator or by whatever of' +
          ' them is not a button. Along an edge they lie in rows; at the le' +
          'ft and at the right they stand upright. Off the edges they float' +
          ' in a frame of their own, and in the frame they are dragged by i' +
          'ts caption.'
        ''
        
          'A right click on a bar, or on the room beside it, lists all bars' +
          '. So does the first button of the bar "View". What is hidden com' +
          'es back there, and the last item puts everything back to where i' +
          't was at first.'
        ''
        
          'Leave the program and start it again: bars and window are where ' +
          'they were.')
      ParentFont = False
      ScrollBars = ssVertical
      TabOrder = 0
      OnChange = MemoChange
    end
    object DrawingPane: TScrollBox
      Left = 424
      Top = 0
      Width = 328
      Height = 512
      HorzScrollBar.Tracking = True
      VertScrollBar.Tracking = True
      Align = alRight
      Color = clAppWorkSpace
      ParentColor = False
      TabOrder = 1
      object Paper: TPaintBox
        Left = 8
        Top = 8
        Width = 300
        Height = 400
      end
    end
  end
  object StatusBar: TkelPanel
    Left = 0
    Top = 616
    Width = 804
    Height = 28
    BevelSides = [sdTop]
    BorderSides = []
    Transparent = False
    ShowCaption = False
    Align = alBottom
    BorderWidth = 3
    TabOrder = 5
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
    Top = 504
  end
  object LargeGlyphs: TkelGlyphs
    Left = 80
    Top = 504
  end
  object SavePos: TkelSavePos
    Left = 120
    Top = 504
  end
  object BarsMenu: TPopupMenu
    OnPopup = BarsMenuPopup
    Left = 40
    Top = 552
  end
  object ColorMenu: TPopupMenu
    OnPopup = ColorMenuPopup
    Left = 80
    Top = 552
  end
  object StyleMenu: TPopupMenu
    Left = 120
    Top = 552
    object StyleItem1: TMenuItem
      Caption = 'Normal'
      Checked = True
      RadioItem = True
      OnClick = StyleItemClick
    end
    object StyleItem2: TMenuItem
      Tag = 1
      Caption = 'Heading'
      RadioItem = True
      OnClick = StyleItemClick
    end
    object StyleItem3: TMenuItem
      Tag = 2
      Caption = 'Quotation'
      RadioItem = True
      OnClick = StyleItemClick
    end
    object StyleItem4: TMenuItem
      Tag = 3
      Caption = 'Program'
      RadioItem = True
      OnClick = StyleItemClick
    end
  end
  object LineStyleMenu: TPopupMenu
    Left = 160
    Top = 552
    object LineStyleItem1: TMenuItem
      Caption = 'Whole'
      Checked = True
      RadioItem = True
      OnClick = LineStyleItemClick
    end
    object LineStyleItem2: TMenuItem
      Tag = 1
      Caption = 'Dashed'
      RadioItem = True
      OnClick = LineStyleItemClick
    end
    object LineStyleItem3: TMenuItem
      Tag = 2
      Caption = 'Dotted'
      RadioItem = True
      OnClick = LineStyleItemClick
    end
  end
  object LineWidthMenu: TPopupMenu
    Left = 200
    Top = 552
    object LineWidthItem1: TMenuItem
      Tag = 1
      Caption = '1 pixel'
      Checked = True
      RadioItem = True
      OnClick = LineWidthItemClick
    end
    object LineWidthItem2: TMenuItem
      Tag = 2
      Caption = '2 pixels'
      RadioItem = True
      OnClick = LineWidthItemClick
    end
    object LineWidthItem3: TMenuItem
      Tag = 4
      Caption = '4 pixels'
      RadioItem = True
      OnClick = LineWidthItemClick
    end
    object LineWidthItem4: TMenuItem
      Tag = 8
      Caption = '8 pixels'
      RadioItem = True
      OnClick = LineWidthItemClick
    end
  end
end
