object MainForm: TMainForm
  Left = 120
  Top = 80
  Caption = 'Notes'
  ClientHeight = 400
  ClientWidth = 640
  ShowHint = True
  OnCloseQuery = FormCloseQuery
  OnCreate = FormCreate
  OnDestroy = FormDestroy
  object DockTop: TkelDock
    Left = 0
    Top = 0
    Width = 640
    Height = 52
    Align = alTop
    object MenuBar: TkelMenuBar
      Left = 0
      Top = 0
      Width = 640
      Height = 26
      Caption = 'Menu'
      object FileButton: TkelMenuButton
        Left = 14
        Top = 2
        Width = 36
        Height = 22
        Caption = '&File'
        Align = alLeft
        Menu = FileMenu
      end
      object EditButton: TkelMenuButton
        Left = 50
        Top = 2
        Width = 38
        Height = 22
        Caption = '&Edit'
        Align = alLeft
        Menu = EditMenu
      end
    end
    object FileBar: TkelToolBar
      Left = 0
      Top = 26
      Width = 82
      Height = 26
      Caption = 'File'
      object NewButton: TkelTBButton
        Left = 14
        Top = 2
        Width = 22
        Height = 22
        Hint = 'New|Begins a new text'
        GlyphIndex = 0
        Glyphs = Glyphs
        OnClick = NewItemClick
        Align = alLeft
      end
      object OpenButton: TkelTBButton
        Left = 36
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Open|Shows a text that is in a file'
        GlyphIndex = 1
        Glyphs = Glyphs
        OnClick = OpenItemClick
        Align = alLeft
      end
      object SaveButton: TkelTBButton
        Left = 58
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Save|Writes the text to its file'
        GlyphIndex = 2
        Glyphs = Glyphs
        OnClick = SaveItemClick
        Align = alLeft
      end
    end
    object EditBar: TkelToolBar
      Left = 82
      Top = 26
      Width = 82
      Height = 26
      Caption = 'Edit'
      object CutButton: TkelTBButton
        Left = 14
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Cut|Moves the selection to the clipboard'
        GlyphIndex = 3
        Glyphs = Glyphs
        OnClick = CutItemClick
        Align = alLeft
      end
      object CopyButton: TkelTBButton
        Left = 36
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Copy|Copies the selection to the clipboard'
        GlyphIndex = 4
        Glyphs = Glyphs
        OnClick = CopyItemClick
        Align = alLeft
      end
      object PasteButton: TkelTBButton
        Left = 58
        Top = 2
        Width = 22
        Height = 22
        Hint = 'Paste|Puts in what is on the clipboard'
        GlyphIndex = 5
        Glyphs = Glyphs
        OnClick = PasteItemClick
        Align = alLeft
      end
    end
  end
  object DockLeft: TkelDock
    Left = 0
    Top = 52
    Width = 9
    Height = 325
    Align = alLeft
  end
  object DockRight: TkelDock
    Left = 631
    Top = 52
    Width = 9
    Height = 325
    Align = alRight
  end
  object StatusPanel: TPanel
    Left = 0
    Top = 378
    Width = 640
    Height = 22
    Align = alBottom
    Alignment = taLeftJustify
    BevelOuter = bvLowered
    TabOrder = 2
  end
  object DockBottom: TkelDock
    Left = 0
    Top = 369
    Width = 640
    Height = 9
    Align = alBottom
  end
  object RecentList: TListBox
    Left = 9
    Top = 52
    Width = 160
    Height = 317
    Hint = '|The files that were used last'
    Align = alLeft
    ItemHeight = 13
    TabOrder = 0
    OnClick = RecentListClick
    OnEnter = RecentListEnter
    OnExit = RecentListExit
  end
  object Splitter: TSplitter
    Left = 169
    Top = 52
    Width = 4
    Height = 317
  end
  object Memo: TMemo
    Left = 173
    Top = 52
    Width = 458
    Height = 317
    Align = alClient
    ScrollBars = ssVertical
    TabOrder = 1
  end
  object Glyphs: TkelGlyphs
  end
  object FileMenu: TkelOfficePopupMenu
    Glyphs = Glyphs
    object NewItem: TMenuItem
      Tag = 1
      Caption = '&New'
      Hint = 'Begins a new text'
      ShortCut = 16462
      OnClick = NewItemClick
    end
    object OpenItem: TMenuItem
      Tag = 2
      Caption = '&Open...'
      Hint = 'Shows a text that is in a file'
      ShortCut = 16463
      OnClick = OpenItemClick
    end
    object SaveItem: TMenuItem
      Tag = 3
      Caption = '&Save'
      Hint = 'Writes the text to its file'
      ShortCut = 16467
      OnClick = SaveItemClick
    end
    object SaveAsItem: TMenuItem
      Caption = 'Save &as...'
      Hint = 'Writes the text to another file'
      OnClick = SaveAsItemClick
    end
    object FileLine: TMenuItem
      Caption = '-'
    end
    object OptionsItem: TMenuItem
      Caption = 'O&ptions...'
      Hint = 'How the text is shown'
      ShortCut = 120
      OnClick = OptionsItemClick
    end
    object ExitItem: TMenuItem
      Caption = 'E&xit'
      ShortCut = 32883
      OnClick = ExitItemClick
    end
  end
  object EditMenu: TkelOfficePopupMenu
    Glyphs = Glyphs
    object CutItem: TMenuItem
      Tag = 4
      Caption = 'Cu&t'
      Hint = 'Moves the selection to the clipboard'
      ShortCut = 16472
      OnClick = CutItemClick
    end
    object CopyItem: TMenuItem
      Tag = 5
      Caption = '&Copy'
      Hint = 'Copies the selection to the clipboard'
      ShortCut = 16451
      OnClick = CopyItemClick
    end
    object PasteItem: TMenuItem
      Tag = 6
      Caption = '&Paste'
      Hint = 'Puts in what is on the clipboard'
      ShortCut = 16470
      OnClick = PasteItemClick
    end
    object ListLine: TMenuItem
      Caption = '-List'
    end
    object RemoveItem: TMenuItem
      Caption = '&Remove from the list'
      Enabled = False
      Hint = 'Takes the chosen file out of the list'
      ShortCut = 46
      OnClick = RemoveItemClick
    end
  end
  object SavePos: TkelSavePos
  end
end
