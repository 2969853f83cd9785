object BaseForm: TBaseForm
  Left = 10
  Top = 20
  Width = 300
  Height = 200
  Caption = 'Base'
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'Tahoma'
  Font.Style = []
  OldCreateOrder = False
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 13
  object Common: TProbe
    Left = 8
    Top = 8
    Caption = 'from the base'
    TabOrder = 0
  end
end
