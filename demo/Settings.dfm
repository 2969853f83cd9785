object SettingsForm: TSettingsForm
  Left = 322
  Top = 250
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Settings'
  ClientHeight = 334
  ClientWidth = 484
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'Tahoma'
  Font.Style = []
  OldCreateOrder = False
  ShowHint = True
  OnCloseQuery = FormCloseQuery
  PixelsPerInch = 96
  TextHeight = 13
  object BottomLine: TBevel
    Left = 12
    Top = 288
    Width = 460
    Height = 2
    Shape = bsTopLine
  end
  object PageList: TListBox
    Left = 12
    Top = 12
    Width = 108
    Height = 266
    ItemHeight = 13
    Items.Strings = (
      'Text'
      'Tool bars'
      'You'
      'About')
    TabOrder = 0
    OnClick = PageListClick
  end
  object TextPage: TPanel
    Left = 132
    Top = 12
    Width = 340
    Height = 266
    BevelOuter = bvNone
    TabOrder = 1
    object Label2: TLabel
      Left = 0
      Top = 0
      Width = 340
      Height = 13
      AutoSize = False
      Caption = 'How the text of documents looks'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clHighlight
      Font.Height = -11
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object Line3: TBevel
      Left = 0
      Top = 16
      Width = 340
      Height = 2
      Shape = bsTopLine
    end
    object Label4: TLabel
      Left = 0
      Top = 31
      Width = 30
      Height = 13
      Caption = '&Font'
      FocusControl = FontCombo
    end
    object Label5: TLabel
      Left = 0
      Top = 87
      Width = 30
      Height = 13
      Caption = '&Size'
      FocusControl = SizeEdit
    end
    object Label6: TLabel
      Left = 0
      Top = 115
      Width = 72
      Height = 13
      Caption = 'Te&xt colour'
      FocusControl = TextColorCombo
    end
    object Label7: TLabel
      Left = 0
      Top = 143
      Width = 78
      Height = 13
      Caption = '&Paper colour'
      FocusControl = PaperColorCombo
    end
    object Label8: TLabel
      Left = 0
      Top = 171
      Width = 42
      Height = 13
      Caption = 'Preview'
    end
    object SizeRange: TLabel
      Left = 148
      Top = 87
      Width = 120
      Height = 13
      Caption = 'points'
    end
    object FontCombo: TkelFontComboBox
      Left = 92
      Top = 28
      Width = 248
      Height = 22
      TabOrder = 0
      OnChange = LookChange
    end
    object TrueTypeBox: TkelOfficeCheckBox
      Left = 92
      Top = 54
      Width = 248
      Height = 20
      Caption = 'TrueType only'
      TabOrder = 1
      TabStop = True
      OnClick = TrueTypeBoxClick
    end
    object SizeEdit: TkelOfficeEdit
      Left = 92
      Top = 84
      Width = 48
      Height = 19
      TabOrder = 2
      MaxLength = 8
      OnChange = LookChange
    end
    object TextColorCombo: TkelColorComboBox
      Left = 92
      Top = 111
      Width = 132
      Height = 22
      TabOrder = 3
      OnChange = LookChange
    end
    object PaperColorCombo: TkelColorComboBox
      Left = 92
      Top = 139
      Width = 132
      Height = 22
      TabOrder = 4
      OnChange = LookChange
    end
    object Preview: TPanel
      Left = 92
      Top = 168
      Width = 248
      Height = 98
      BevelOuter = bvLowered
      Caption = 'Quick foxes jump'
      ParentColor = False
      ParentFont = False
      TabOrder = 5
    end
  end
  object BarsPage: TPanel
    Left = 132
    Top = 12
    Width = 340
    Height = 266
    BevelOuter = bvNone
    TabOrder = 2
    object Label9: TLabel
      Left = 0
      Top = 0
      Width = 340
      Height = 13
      AutoSize = False
      Caption = 'Where the tool bars are'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clHighlight
      Font.Height = -11
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object Line10: TBevel
      Left = 0
      Top = 16
      Width = 340
      Height = 2
      Shape = bsTopLine
    end
    object Label11: TLabel
      Left = 0
      Top = 28
      Width = 60
      Height = 13
      Caption = '&Tool bars'
      FocusControl = BarList
    end
    object BarList: TkelCheckListBox
      Left = 0
      Top = 44
      Width = 340
      Height = 170
      AllowGrayed = True
      TabOrder = 0
    end
    object Label12: TLabel
      Left = 0
      Top = 222
      Width = 340
      Height = 44
      AutoSize = False
      Caption = 'A click on a box, or the space bar, changes it. Checked: the bar lies in its ' +
        'dock. Grey: it floats. Empty: it is hidden. The menu bar always shows.'
      WordWrap = True
    end
  end
  object YouPage: TPanel
    Left = 132
    Top = 12
    Width = 340
    Height = 266
    BevelOuter = bvNone
    TabOrder = 3
    object Label13: TLabel
      Left = 0
      Top = 0
      Width = 340
      Height = 13
      AutoSize = False
      Caption = 'You and your documents'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clHighlight
      Font.Height = -11
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object Line14: TBevel
      Left = 0
      Top = 16
      Width = 340
      Height = 2
      Shape = bsTopLine
    end
    object Label15: TLabel
      Left = 0
      Top = 31
      Width = 30
      Height = 13
      Caption = '&Name'
      FocusControl = NameEdit
    end
    object Label16: TLabel
      Left = 0
      Top = 59
      Width = 42
      Height = 13
      Caption = '&E-mail'
      FocusControl = EmailEdit
    end
    object NameEdit: TkelOfficeEdit
      Left = 92
      Top = 28
      Width = 248
      Height = 19
      TabOrder = 0
    end
    object EmailEdit: TkelOfficeEdit
      Left = 92
      Top = 56
      Width = 248
      Height = 19
      TabOrder = 1
    end
    object NewGroup: TGroupBox
      Left = 0
      Top = 86
      Width = 340
      Height = 66
      Caption = ' New documents start with '
      TabOrder = 2
      object SampleRadio: TkelOfficeRadioButton
        Left = 12
        Top = 16
        Width = 300
        Height = 20
        Caption = 'A sample text and a sample drawing'
        TabOrder = 0
      end
      object EmptyRadio: TkelOfficeRadioButton
        Left = 12
        Top = 38
        Width = 300
        Height = 20
        Caption = 'An empty text and an empty drawing'
        TabOrder = 1
      end
    end
    object WindowsGroup: TGroupBox
      Left = 0
      Top = 160
      Width = 340
      Height = 66
      Caption = ' Their windows open '
      TabOrder = 3
      object MaximizedRadio: TkelOfficeRadioButton
        Left = 12
        Top = 16
        Width = 300
        Height = 20
        Caption = 'Maximized'
        TabOrder = 0
      end
      object NormalRadio: TkelOfficeRadioButton
        Left = 12
        Top = 38
        Width = 300
        Height = 20
        Caption = 'In their normal size'
        TabOrder = 1
      end
    end
    object HintsBox: TkelOfficeCheckBox
      Left = 0
      Top = 238
      Width = 200
      Height = 20
      Caption = 'Show hints'
      TabOrder = 4
      TabStop = True
    end
  end
  object AboutPage: TPanel
    Left = 132
    Top = 12
    Width = 340
    Height = 266
    BevelOuter = bvNone
    TabOrder = 4
    object Label17: TLabel
      Left = 0
      Top = 0
      Width = 340
      Height = 13
      AutoSize = False
      Caption = 'About the showcase'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clHighlight
      Font.Height = -11
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object Line18: TBevel
      Left = 0
      Top = 16
      Width = 340
      Height = 2
      Shape = bsTopLine
    end
    object NamePlate: TkelOfficePanel
      Left = 0
      Top = 28
      Width = 340
      Height = 64
      BevelInner = bvLowered
      BorderWidth = 4
      Caption = 'Tessary'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clHighlight
      Font.Height = -24
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
      TabOrder = 0
    end
    object ToysLabel: TkelOfficeLabel
      Left = 0
      Top = 104
      Width = 340
      Height = 15
      AutoSize = False
      Caption = 'A library of components for desktop programs'
    end
    object FirstStepsLink: TkelWebLabel
      Left = 0
      Top = 132
      Width = 160
      Height = 16
      Cursor = 10
      Caption = 'First steps'
      Hint = 'docs/first-steps.md: a program in five minutes'
      OnClick = LinkClick
      Underline = True
    end
    object ToolbarsLink: TkelWebLabel
      Left = 0
      Top = 154
      Width = 160
      Height = 16
      Cursor = 10
      Caption = 'Toolbars'
      Hint = 'docs/toolbars.md: docks, bars and their buttons'
      OnClick = LinkClick
      Underline = True
    end
    object MenusLink: TkelWebLabel
      Left = 0
      Top = 176
      Width = 160
      Height = 16
      Cursor = 10
      Caption = 'Menus'
      Hint = 'docs/menus.md: menu bars and menus in the same look'
      OnClick = LinkClick
      Underline = True
    end
    object ControlsLink: TkelWebLabel
      Left = 0
      Top = 198
      Width = 160
      Height = 16
      Cursor = 10
      Caption = 'Controls'
      Hint = 'docs/controls.md: the controls of this dialog'
      OnClick = LinkClick
      Underline = True
    end
  end
  object DefaultsButton: TkelButton
    Left = 12
    Top = 297
    Width = 120
    Height = 25
    Caption = '&Restore defaults'
    TabOrder = 5
    OnClick = DefaultsClick
  end
  object OkButton: TkelBitBtn
    Left = 312
    Top = 297
    Width = 76
    Height = 25
    TabOrder = 6
    Kind = bkOK
  end
  object CancelButton: TkelBitBtn
    Left = 396
    Top = 297
    Width = 76
    Height = 25
    TabOrder = 7
    Kind = bkCancel
  end
  object SavePos: TkelSavePos
  end
end
