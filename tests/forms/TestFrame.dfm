object TestFrame: TTestFrame
  Left = 0
  Top = 0
  Width = 150
  Height = 60
  TabOrder = 0
  object Inner: TProbe
    Left = 8
    Top = 8
    Caption = 'in the frame'
    TabOrder = 0
  end
end
