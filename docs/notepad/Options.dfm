object OptionsForm: TOptionsForm
  Left = 0
  Top = 0
  BorderStyle = bsDialog
  Caption = 'Options'
  ClientHeight = 106
  ClientWidth = 232
  Position = poMainFormCenter
  OnCloseQuery = FormCloseQuery
  OnCreate = FormCreate
  OnDestroy = FormDestroy
  object SizeLabel: TLabel
    Left = 12
    Top = 15
    Width = 96
    Height = 13
    Caption = '&Size of the text'
    FocusControl = SizeEdit
  end
  object SizeEdit: TEdit
    Left = 140
    Top = 11
    Width = 80
    Height = 21
    TabOrder = 0
  end
  object WrapBox: TCheckBox
    Left = 12
    Top = 42
    Width = 208
    Height = 17
    Caption = '&Break lines at the edge of the window'
    TabOrder = 1
  end
  object OkButton: TButton
    Left = 64
    Top = 72
    Width = 75
    Height = 25
    Caption = 'OK'
    Default = True
    ModalResult = 1
    TabOrder = 2
  end
  object CancelButton: TButton
    Left = 145
    Top = 72
    Width = 75
    Height = 25
    Cancel = True
    Caption = 'Cancel'
    ModalResult = 2
    TabOrder = 3
  end
end
