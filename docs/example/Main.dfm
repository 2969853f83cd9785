object MainForm: TMainForm
  Left = 200
  Top = 120
  Caption = 'First steps'
  ClientHeight = 90
  ClientWidth = 240
  Position = poScreenCenter
  object Greeting: TLabel
    Left = 16
    Top = 16
    Width = 100
    Height = 13
    Caption = 'This is a form of its own.'
  end
  object CountButton: TButton
    Left = 16
    Top = 44
    Width = 208
    Height = 25
    Caption = 'Click me'
    TabOrder = 0
    OnClick = CountButtonClick
  end
end
