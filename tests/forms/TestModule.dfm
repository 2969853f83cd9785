object TestModule: TTestModule
  OldCreateOrder = False
  OnCreate = ModuleCreate
  Left = 192
  Top = 107
  Height = 150
  Width = 215
  object Popup: TPopupMenu
    Left = 16
    Top = 16
  end
end
