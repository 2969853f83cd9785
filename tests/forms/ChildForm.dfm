inherited ChildForm: TChildForm
  Caption = 'Child'
  PixelsPerInch = 96
  TextHeight = 13
  inherited Common: TProbe
    Caption = 'changed'
  end
  object Added: TProbe
    Left = 8
    Top = 40
    Caption = 'new'
    TabOrder = 1
  end
end
