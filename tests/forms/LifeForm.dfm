object LifeForm: TLifeForm
  Left = 200
  Top = 150
  AutoScroll = False
  Caption = #1060#1086#1088#1084#1072
  ClientHeight = 150
  ClientWidth = 250
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'Tahoma'
  Font.Style = []
  KeyPreview = True
  Menu = MainMenu1
  OldCreateOrder = False
  Visible = True
  OnCreate = FormCreate
  OnShow = FormShow
  DesignSize = (
    250
    150)
  PixelsPerInch = 96
  TextHeight = 13
  object First: TProbe
    Left = 8
    Top = 8
    Width = 100
    Height = 25
    Caption = 'First'
    TabOrder = 1
    OnEnter = FirstEnter
  end
  object Second: TProbe
    Left = 8
    Top = 40
    Width = 100
    Height = 25
    Anchors = [akLeft, akTop, akRight]
    Caption = 'Second'
    TabOrder = 0
  end
  object MainMenu1: TMainMenu
    Left = 16
    Top = 16
    object File1: TMenuItem
      Caption = '&File'
      object Save1: TMenuItem
        Caption = '&Save'
        Hint = 'Save|Writes the file'
        ShortCut = 16467
        OnClick = Save1Click
      end
    end
  end
end
