object ÜbersichtForm: TÜbersichtForm
  Caption = #220'bersicht'
  OnClick = ÜbersichtClick
  Größe.Breite = 10
  object Список: TListBox
    Items.Strings = (
      #1054#1076#1080#1085
      'two')
  end
end
