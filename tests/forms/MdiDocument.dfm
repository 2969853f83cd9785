object MdiDocument: TMdiDocument
  Left = 200
  Top = 150
  ClientHeight = 111
  ClientWidth = 222
  Caption = 'Document'
  FormStyle = fsMDIChild
  OldCreateOrder = False
  Position = poDefaultPosOnly
  Visible = True
  OnActivate = FormActivate
  OnCreate = FormCreate
  OnShow = FormShow
  PixelsPerInch = 96
  TextHeight = 13
  object Edit: TProbe
    Left = 8
    Top = 8
    TabOrder = 0
  end
end
