object DocumentForm: TDocumentForm
  Left = 0
  Top = 0
  Caption = 'Document'
  ClientHeight = 380
  ClientWidth = 560
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
  object DocumentMenu: TkelMDIChildMenuBar
    Left = 0
    Top = 0
    Width = 560
    Height = 26
    Caption = 'Document menu'
    AutoSave = False
    CloseButton = False
    AllowResize = False
    AutoMerge = True
    object EditButton: TkelMenuButton
      Left = 14
      Top = 2
      Width = 38
      Height = 22
      Caption = '&Edit'
      Align = alLeft
      Menu = EditMenu
      MenuGroupIndex = 1
    end
    object FormatButton: TkelMenuButton
      Left = 52
      Top = 2
      Width = 52
      Height = 22
      Caption = 'F&ormat'
      Align = alLeft
      Menu = FormatMenu
      MenuGroupIndex = 2
    end
    object ColorButton: TkelMenuButton
      Left = 104
      Top = 2
      Width = 50
      Height = 22
      Caption = '&Colour'
      Align = alLeft
      Menu = ColorMenu
      MenuGroupIndex = 3
    end
  end
  object Splitter: TSplitter
    Left = 228
    Top = 0
    Width = 4
    Height = 380
    Align = alRight
    ResizeStyle = rsUpdate
  end
  object Memo: TMemo
    Left = 0
    Top = 0
    Width = 228
    Height = 380
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
      
        'A right click on a bar, or on the room beside it, opens the menu' +
        ' View, which lists all bars. What is hidden comes back there, an' +
        'd "Reset layout" puts everything back to where it was at first.'
      ''
      
        'Menus open by a click, by Alt and the letter that is underlined,' +
        ' or by F10 and the arrow keys. Leave the program and start it ag' +
        'ain: bars and window are where they were.')
    ParentFont = False
    ScrollBars = ssVertical
    TabOrder = 0
    OnChange = MemoChange
    OnKeyUp = MemoKeyUp
    OnMouseUp = MemoMouseUp
  end
  object DrawingPane: TScrollBox
    Left = 232
    Top = 0
    Width = 328
    Height = 380
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
  object EditMenu: TkelOfficePopupMenu
    Glyphs = MainForm.ToolGlyphs
    Left = 40
    Top = 320
    object UndoItem: TMenuItem
      Tag = 12
      Caption = '&Undo'
      ShortCut = 16474
      OnClick = CommandClick
    end
    object RedoItem: TMenuItem
      Tag = 13
      Caption = '&Redo'
      ShortCut = 16473
      OnClick = CommandClick
    end
    object EditLine1: TMenuItem
      Caption = '-'
    end
    object CutItem: TMenuItem
      Tag = 7
      Caption = 'Cu&t'
      ShortCut = 16472
      OnClick = CommandClick
    end
    object CopyItem: TMenuItem
      Tag = 8
      Caption = '&Copy'
      ShortCut = 16451
      OnClick = CommandClick
    end
    object PasteItem: TMenuItem
      Tag = 9
      Caption = '&Paste'
      ShortCut = 16470
      OnClick = CommandClick
    end
    object DeleteItem: TMenuItem
      Tag = 11
      Caption = '&Delete'
      OnClick = CommandClick
    end
    object SelectAllItem: TMenuItem
      Tag = 73
      Caption = 'Select &all'
      ShortCut = 16449
      OnClick = CommandClick
    end
    object EditLine2: TMenuItem
      Caption = '-Text'
    end
    object FindItem: TMenuItem
      Tag = 14
      Caption = '&Find the next place'
      ShortCut = 16454
      OnClick = CommandClick
    end
    object DateItem: TMenuItem
      Tag = 46
      Caption = 'Date and ti&me'
      ShortCut = 116
      OnClick = CommandClick
    end
    object CountItem: TMenuItem
      Tag = 38
      Caption = '&Words and letters'
      OnClick = CommandClick
    end
    object ProtectItem: TMenuItem
      Tag = 48
      Caption = 'Pr&otect'
      OnClick = CommandClick
    end
  end
  object FormatMenu: TkelOfficePopupMenu
    Glyphs = MainForm.ToolGlyphs
    Left = 80
    Top = 320
    object StyleItem: TMenuItem
      Tag = 69
      Caption = 'St&yle'
      OnClick = StyleOpen
      object StyleItem1: TMenuItem
        Caption = '&Normal'
        OnClick = StyleItemClick
      end
      object StyleItem2: TMenuItem
        Caption = '&Heading'
        OnClick = StyleItemClick
      end
      object StyleItem3: TMenuItem
        Caption = '&Quotation'
        OnClick = StyleItemClick
      end
      object StyleItem4: TMenuItem
        Caption = '&Program'
        OnClick = StyleItemClick
      end
    end
    object LettersTitle: TMenuItem
      Caption = '-Letters'
    end
    object BoldItem: TMenuItem
      Tag = 16
      Caption = '&Bold'
      ShortCut = 16450
      OnClick = CommandClick
    end
    object ItalicItem: TMenuItem
      Tag = 17
      Caption = '&Italic'
      ShortCut = 16457
      OnClick = CommandClick
    end
    object UnderlineItem: TMenuItem
      Tag = 18
      Caption = '&Underline'
      ShortCut = 16469
      OnClick = CommandClick
    end
    object StrikeoutItem: TMenuItem
      Tag = 19
      Caption = '&Strikeout'
      OnClick = CommandClick
    end
    object LinesTitle: TMenuItem
      Caption = '-Lines'
    end
    object AlignLeftItem: TMenuItem
      Tag = 22
      Caption = '&Left'
      GroupIndex = 1
      RadioItem = True
      ShortCut = 16460
      OnClick = CommandClick
    end
    object AlignCenterItem: TMenuItem
      Tag = 23
      Caption = 'C&entred'
      GroupIndex = 1
      RadioItem = True
      ShortCut = 16453
      OnClick = CommandClick
    end
    object AlignRightItem: TMenuItem
      Tag = 24
      Caption = '&Right'
      GroupIndex = 1
      RadioItem = True
      ShortCut = 16466
      OnClick = CommandClick
    end
    object SizeTitle: TMenuItem
      Caption = '-Size'
      GroupIndex = 1
    end
    object LargerItem: TMenuItem
      Tag = 70
      Caption = 'Lar&ger'
      GroupIndex = 1
      OnClick = CommandClick
    end
    object SmallerItem: TMenuItem
      Tag = 71
      Caption = 'S&maller'
      GroupIndex = 1
      OnClick = CommandClick
    end
  end
  object ColorMenu: TkelColorMenu
    OnChange = ColorMenuChange
    Left = 120
    Top = 320
  end
end
