#include "demo_shop.h"

#include "demo_sales.h"
#include "demo_stock.h"

void FillDemoShop(DataFile& file, Dice& dice, const QDate& today)
{
    file.Run("UPDATE settings SET BusinessName = 'Ellery & Daughters, Hardware & Household', "
             "Address1 = '12 Quay Street', Address2 = 'The Old Sail Loft', City = 'Port Ellery', State = 'NC', "
             "PostCode = '04101', Country = 'Elleria', Phone = '(555) 240-0112', Fax = '(555) 240-0113', "
             "Email = 'shop@ellery.example', Logofilename = ''");
    const std::vector<StockedItem> items = StockTheShop(file, dice);
    SellForAYear(file, dice, items, today);
}
