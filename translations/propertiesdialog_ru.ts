<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>Не удаётся сохранить параметры %1: они слишком длинные или содержат перевод строки.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>Пароль пользователя %1 на %2? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>Нет связи с принтером «%1».</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>Сервер печати не ответил вовремя.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>Сервер печати прервал соединение, не закончив ответ.</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Выбор дополнительного смещения печати</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Смещение:</translation>
    </message>
    <message>
        <source>-0.75mm</source>
        <translation>-0.75мм</translation>
    </message>
    <message>
        <source>-0.50mm</source>
        <translation>-0.50мм</translation>
    </message>
    <message>
        <source>-0.25mm</source>
        <translation>-0.25мм</translation>
    </message>
    <message>
        <source> 0.00mm</source>
        <translation> 0.00мм</translation>
    </message>
    <message>
        <source> 0.25mm</source>
        <translation> 0.25мм</translation>
    </message>
    <message>
        <source> 0.50mm</source>
        <translation> 0.50мм</translation>
    </message>
    <message>
        <source> 0.75mm</source>
        <translation> 0.75мм</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>От %1 до %2 дюйма</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 дюйма = %2 мм</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Только числа от %1 до %2, не более двух знаков после запятой.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>От %1 до %2 точек</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 точек = %2 мм</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Только целые числа от %1 до %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>Сервер печати запрашивает имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>Имя пользователя или пароль не приняты. Повторите попытку.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 нельзя изменить.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 нельзя удалить.</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>DL</source>
        <translation>DL</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готов</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Тип:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Место:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Здесь</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Печать в файл</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Число копий:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Напечатать сейчас?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Сменить текущий принтер на 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Смена принтера</translation>
    </message>
</context>
<context>
    <name>PrintPropertiesDialog</name>
    <message>
        <source>PrintPropertiesDialog</source>
        <translation>PrintPropertiesDialog</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Страница</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Пользовательский размер страницы</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Ширина:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>дюйма</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Высота:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ориентация</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Книжная</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Альбомная</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Книжная 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Альбомная 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Эффекты</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Зеркально</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Негатив</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Набор параметров</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Управление...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Скорость печати</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Плотность печати</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Наборы</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>Наборы сохраняют параметры печати под именем,
чтобы быстро переключаться между ними.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Список наборов:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Описание:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Обновить...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Носитель</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Параметры носителя</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Тип носителя:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Ширина чёрной метки:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Смещение чёрной метки:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Способ печати:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Обработка носителя</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Отрезка:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Подача:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Обратная подача:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>точек</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Перекрытие:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Коррекция положения</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Положение остановки:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Начальное положение:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Команды пользователя</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Начало задания</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Начало этикетки</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Конец этикетки</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Конец задания</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Коррекция положения</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Смещение по горизонтали:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Смещение по вертикали:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Непрерывный</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Этикетки с промежутками</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Этикетки с метками</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Не отрезать</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Отрезать после задания</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Отрезать после страницы</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Смещение по вертикали</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Положение остановки</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Размер промежутка</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Смещение промежутка</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Размер чёрной метки</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Смещение чёрной метки</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Новый набор</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Новый набор %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Ориентация: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Ориентация: %1, зеркально</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Ориентация: %1, негатив</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Ориентация: %1, зеркально, негатив</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>В драйвере этого принтера нет такого параметра.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>От %1 x %2 до %3 x %4 дюйма.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>Драйвер этого принтера принимает только размеры страниц из своего списка.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>На усмотрение принтера (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Пусто: на усмотрение принтера (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>В драйвере этого принтера нет параметров этикеток. Действуют только размер страницы и ориентация.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 и %2 нельзя использовать вместе.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Этот набор не может хранить текущие параметры принтера: %1. При его выборе они изменятся.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Свойства принтера этикеток</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Выберите &amp;принтер:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Очередь</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Расположение</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Не принимает задания</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлен</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>Напечатать про&amp;бную этикетку</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Показывает и изменяет параметры принтера этикеток.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ИМЯ</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Перечисляет очереди печати; очередь по умолчанию отмечена звёздочкой.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>неожиданный аргумент «%1»</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>принтера «%1» нет; --list перечисляет имеющиеся</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>Свойства принтера этикеток</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>Очередь печати вместо выбираемой из списка.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Печатает в указанной очереди или в очереди по умолчанию этикетку для настройки смещений и плотности печати.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Показывает эту справку.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Показывает версию.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>Нет связи со службой печати: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Ни один принтер не настроен.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>Не удалось напечатать пробную этикетку: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>нет принтера по умолчанию; укажите принтер с помощью -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>Пробная этикетка отправлена на %1.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>не удаётся показать окно: не заданы ни DISPLAY, ни WAYLAND_DISPLAY</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>не удаётся показать окно при %1</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>Принтер по умолчанию «%1» не существует.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>Не удалось сохранить наборы.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Не удалось сохранить параметры: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 и %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Эти параметры нельзя использовать вместе:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Изменить их на следующие?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Использование: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[параметры]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Неизвестный параметр «%1».</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Пропущено значение после «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Неожиданное значение после «%1».</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Этот набор содержит текущие параметры этого драйвера.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Этот набор содержит исходные параметры этого драйвера по умолчанию.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Настройка печати: %1</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>Непрерывный</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Этикетки с промежутками</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Этикетки с метками</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Не отрезать</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Отрезать после задания</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Отрезать после страницы</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>Плотность печати %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Скорость %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Смещение %1, %2 точек</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Параметры по умолчанию</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 мм</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Пробная этикетка</translation>
    </message>
</context>
</TS>
